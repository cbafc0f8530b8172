#include "component/script/form_script.h"

#include <charconv>
#include <exception>
#include <filesystem>
#include <functional>
#include <istream>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "component/class1.h"
#include "component/script/script_error.h"
#include "component/script/script_platform.h"
#include "component/script/script_tokens.h"
#include "component/session.h"
#include "files/job_paths.h"

namespace pellam::component::script {

namespace {

using Args = std::vector<Token>;

bool parseInt(const std::string& text, int& value) {
  const char* end = text.data() + text.size();
  auto [ptr, ec] = std::from_chars(text.data(), end, value);
  return ec == std::errc() && ptr == end && !text.empty();
}

// A script argument as the host would pass it: strings as they are, numbers and booleans
// converted to their text.
std::string asString(const Token& arg) {
  if (arg.quoted) return arg.text;
  int n = 0;
  if (arg.text == "True" || arg.text == "False" || parseInt(arg.text, n)) return arg.text;
  throw ScriptError{"bad argument " + arg.text + " (give a quoted string, a number, True or False)"};
}

bool asBool(const Token& arg) {
  int n = 0;
  if (!arg.quoted && arg.text == "True") return true;
  if (!arg.quoted && arg.text == "False") return false;
  if (!arg.quoted && parseInt(arg.text, n)) return n != 0;
  throw ScriptError{"bad argument " + (arg.quoted ? quote(arg.text) : arg.text) + " (give True or False)"};
}

const char* flag(bool on) { return on ? "1" : "0"; }

class Runner {
 public:
  explicit Runner(std::ostream& out) : out_(out), platform_(out), session_(platform_, platform_, platform_), class1_(session_) {}

  void run(const Args& tokens, int line) {
    if (tokens[0].quoted) throw ScriptError{"a line starts with a command, not a string"};
    const std::string& command = tokens[0].text;
    const Args args(tokens.begin() + 1, tokens.end());
    if (command == "call") return call(args);
    if (command == "select") return select(args);
    if (command == "click") return click(args);
    if (command == "text") return text(args);
    if (command == "answer") return answer(args, line);
    if (command == "choose") return choose(args, line);
    if (command == "clock") return clock(args);
    if (command == "show") return show(args);
    if (command == "bytes") return bytes(args);
    throw ScriptError{"unknown command " + command};
  }

  const ScriptPlatform& platform() const { return platform_; }
  Session& session() { return session_; }

 private:
  static void arity(const Args& args, std::size_t count, const char* usage) {
    if (args.size() != count) throw ScriptError{std::string("usage: ") + usage};
  }

  ui::Control& control(const Token& name) {
    if (ui::Control* c = session_.form.find(name.text)) return *c;
    throw ScriptError{"unknown control " + name.text};
  }

  void call(const Args& args) {
    if (args.empty()) throw ScriptError{"usage: call MEMBER [ARG ...]"};
    using Member = std::function<void(const Args&)>;
    auto none = [](std::size_t n, std::function<void(const Args&)> f) {
      return std::pair{n, Member(std::move(f))};
    };
    Class1& c = class1_;
    std::ostream& out = out_;
    const std::map<std::string, std::pair<std::size_t, Member>, std::less<>> members{
        {"Class_Initialize", none(0, [&](const Args&) { c.Class_Initialize(); })},
        {"Product_Type", none(1, [&](const Args& a) {
           std::string path = asString(a[0]);
           const int result = c.Product_Type(path);
           out << "=> " << result << '\n';
         })},
        {"ReadZPD_ImageFile", none(1, [&](const Args& a) {
           std::string path = asString(a[0]);
           c.ReadZPD_ImageFile(path);
         })},
        {"Create_Pellam_Zpd", none(1, [&](const Args& a) {
           std::string path = asString(a[0]);
           c.Create_Pellam_Zpd(path);
         })},
        {"Return_FileName_Path", none(1, [&](const Args& a) {
           std::string filter = asString(a[0]);
           const std::string result = c.Return_FileName_Path(filter);
           out << "=> " << quote(result) << '\n';
         })},
        {"Load_User_Form", none(0, [&](const Args&) { c.Load_User_Form(); })},
        {"Return_File_Name", none(2, [&](const Args& a) {
           std::string path = asString(a[0]), name = asString(a[1]);
           const std::string result = c.Return_File_Name(path, name);
           out << "=> " << quote(result) << '\n';
         })},
        {"Return_Dir_Path", none(1, [&](const Args& a) {
           std::string path = asString(a[0]);
           const std::string result = c.Return_Dir_Path(path);
           out << "=> " << quote(result) << '\n';
         })},
        {"Initailize_Pellam_Variables_And_Form", none(0, [&](const Args&) { c.Initailize_Pellam_Variables_And_Form(); })},
        {"Unload_Pellam_Form", none(0, [&](const Args&) { c.Unload_Pellam_Form(); })},
        {"Show_Hide_Pellam_Form", none(1, [&](const Args& a) {
           bool show = asBool(a[0]);
           c.Show_Hide_Pellam_Form(show);
         })},
        {"New_KX_Job_Display_Board_SetUp", none(0, [&](const Args&) { c.New_KX_Job_Display_Board_SetUp(); })},
    };
    const auto it = members.find(args[0].text);
    if (args[0].quoted || it == members.end()) throw ScriptError{"unknown member " + args[0].text};
    const Args rest(args.begin() + 1, args.end());
    if (rest.size() != it->second.first) {
      throw ScriptError{it->first + " takes " + std::to_string(it->second.first) + " argument(s), not " +
                        std::to_string(rest.size())};
    }
    it->second.second(rest);
  }

  void select(const Args& args) {
    arity(args, 2, "select CONTROL INDEX");
    ui::Control& c = control(args[0]);
    int index = 0;
    if (args[1].quoted || !parseInt(args[1].text, index)) throw ScriptError{"bad index " + args[1].text};
    if (c.kind() == ui::Kind::MultiPage) {
      auto& pages = static_cast<ui::MultiPage&>(c);
      if (index < 0 || index >= static_cast<int>(pages.pages().size()) ||
          !pages.pages()[static_cast<std::size_t>(index)]->visible()) {
        throw ScriptError{"page " + args[1].text + " of " + args[0].text + " is not showing"};
      }
      return pages.setValue(index);
    }
    if (c.kind() != ui::Kind::ComboBox && c.kind() != ui::Kind::ListBox) {
      throw ScriptError{args[0].text + " is not a combo box or list box"};
    }
    auto& list = static_cast<ui::ListControl&>(c);
    if (index < -1 || index >= list.count()) {
      throw ScriptError{"index " + args[1].text + " is out of range for " + args[0].text + " (count " +
                        std::to_string(list.count()) + ")"};
    }
    list.select(index);
  }

  void click(const Args& args) {
    arity(args, 1, "click CONTROL");
    ui::Control& c = control(args[0]);
    if (c.kind() == ui::Kind::CommandButton) return static_cast<ui::CommandButton&>(c).click();
    if (c.kind() == ui::Kind::OptionButton) return static_cast<ui::OptionButton&>(c).choose();
    throw ScriptError{args[0].text + " is not a command button or option button"};
  }

  void text(const Args& args) {
    arity(args, 2, "text CONTROL \"TEXT\"");
    ui::Control& c = control(args[0]);
    if (c.kind() != ui::Kind::TextBox) throw ScriptError{args[0].text + " is not a text box"};
    if (!args[1].quoted) throw ScriptError{"the text must be a quoted string"};
    static_cast<ui::TextBox&>(c).setText(args[1].text);
  }

  void answer(const Args& args, int line) {
    if (args.empty()) throw ScriptError{"usage: answer WORD ..."};
    static const std::map<std::string, ui::Answer, std::less<>> words{
        {"Yes", ui::Answer::Yes}, {"No", ui::Answer::No}, {"OK", ui::Answer::OK}, {"Cancel", ui::Answer::Cancel}};
    for (const Token& word : args) {
      const auto it = words.find(word.text);
      if (word.quoted || it == words.end()) throw ScriptError{"bad answer " + word.text + " (Yes, No, OK or Cancel)"};
      platform_.queueAnswer(it->second, word.text, line);
    }
  }

  void choose(const Args& args, int line) {
    arity(args, 1, "choose \"PATH\"");
    if (!args[0].quoted) throw ScriptError{"the path must be a quoted string"};
    platform_.queuePath(args[0].text, line);
  }

  void clock(const Args& args) {
    arity(args, 1, "clock \"YYYY-MM-DD HH:MM:SS\"");
    const std::string& text = args[0].text;
    ui::DateTime t{};
    // Each field has a fixed place and width, so no sign, blank or overlong number slips in.
    const std::pair<int*, std::size_t> fields[] = {{&t.year, 0},  {&t.month, 5},   {&t.day, 8},
                                                   {&t.hour, 11}, {&t.minute, 14}, {&t.second, 17}};
    bool parsed = args[0].quoted && text.size() == 19 && text[4] == '-' && text[7] == '-' && text[10] == ' ' &&
                  text[13] == ':' && text[16] == ':';
    for (const auto& [field, at] : fields) {
      const std::size_t width = at == 0 ? 4 : 2;
      parsed = parsed && text.find_first_not_of("0123456789", at) >= at + width &&
               std::from_chars(text.data() + at, text.data() + at + width, *field).ec == std::errc();
    }
    if (!parsed || t.month < 1 || t.month > 12 || t.day < 1 || t.day > 31 || t.hour > 23 || t.minute > 59 ||
        t.second > 59) {
      throw ScriptError{"bad time " + quote(text) + " (give \"YYYY-MM-DD HH:MM:SS\")"};
    }
    platform_.fixClock(t);
  }

  void show(const Args& args) {
    arity(args, 1, "show CONTROL");
    if (args[0].text == "UserForm1") {
      out_ << "UserForm1 loaded=" << flag(session_.form.loaded()) << " visible=" << flag(session_.form.visible())
           << '\n';
      return;
    }
    const ui::Control& c = control(args[0]);
    out_ << c.name();
    const std::string common = std::string(" visible=") + flag(c.visible()) + " enabled=" + flag(c.enabled());
    switch (c.kind()) {
      case ui::Kind::ComboBox: {
        const auto& list = static_cast<const ui::ListControl&>(c);
        out_ << " index=" << list.listIndex() << " text=" << quote(list.text()) << " count=" << list.count() << common
             << '\n';
        break;
      }
      case ui::Kind::ListBox: {
        const auto& list = static_cast<const ui::ListControl&>(c);
        out_ << " index=" << list.listIndex() << " count=" << list.count() << common << '\n';
        for (int i = 0; i < list.count(); ++i) out_ << "  [" << i << "] " << quote(list.item(i)) << '\n';
        break;
      }
      case ui::Kind::TextBox:
        out_ << " text=" << quote(static_cast<const ui::TextBox&>(c).text()) << common << '\n';
        break;
      case ui::Kind::Page: out_ << " visible=" << flag(c.visible()) << '\n'; break;
      case ui::Kind::MultiPage:
        out_ << " value=" << static_cast<const ui::MultiPage&>(c).value() << common << '\n';
        break;
      case ui::Kind::OptionButton:
        out_ << " caption=" << quote(static_cast<const ui::CaptionedControl&>(c).caption()) << common
             << " value=" << flag(static_cast<const ui::OptionButton&>(c).value()) << '\n';
        break;
      default:
        out_ << " caption=" << quote(static_cast<const ui::CaptionedControl&>(c).caption()) << common << '\n';
    }
  }

  void bytes(const Args& args) {
    if (args.empty() || args.size() > 2) throw ScriptError{"usage: bytes OFFSET [COUNT]"};
    int offset = 0, count = 1;
    if (args[0].quoted || !parseInt(args[0].text, offset)) throw ScriptError{"bad offset " + args[0].text};
    if (args.size() == 2 && (args[1].quoted || !parseInt(args[1].text, count) || count < 1)) {
      throw ScriptError{"bad count " + args[1].text};
    }
    // Compared without adding, as offset + count may not fit an int.
    if (offset < 0 || offset >= image::map::kImageSize || count > image::map::kImageSize - offset) {
      throw ScriptError{"bytes " + std::to_string(offset) + ".." + std::to_string(offset + (count - 1LL)) +
                        " lie outside the image (0.." + std::to_string(image::map::kImageSize - 1) + ")"};
    }
    out_ << "bytes " << offset << ':';
    for (int i = 0; i < count; ++i) out_ << ' ' << static_cast<int>(session_.image.at(offset + i));
    out_ << '\n';
  }

  std::ostream& out_;
  ScriptPlatform platform_;
  Session session_;
  Class1 class1_;
};

enum class LineRead { Line, End, TooLong };

// getline with a bound: reading stops at kMaxLineLength bytes without a line end.
LineRead readLine(std::istream& in, std::string& text) {
  text.clear();
  std::streambuf* buffer = in.rdbuf();
  if (!in.good() || buffer == nullptr) return LineRead::End;
  using Traits = std::istream::traits_type;
  for (;;) {
    const auto c = buffer->sbumpc();
    if (Traits::eq_int_type(c, Traits::eof())) {
      in.setstate(std::ios::eofbit);
      return text.empty() ? LineRead::End : LineRead::Line;
    }
    if (Traits::to_char_type(c) == '\n') return LineRead::Line;
    if (text.size() == kMaxLineLength) return LineRead::TooLong;
    text += Traits::to_char_type(c);
  }
}

}  // namespace

int runFormScript(std::istream& in, std::ostream& out, std::ostream& err,
                  const std::function<void(Session&)>& prepare) {
  // The session is large; keep it off the stack.
  auto runner = std::make_unique<Runner>(out);
  if (prepare) prepare(runner->session());
  std::string text;
  int line = 0;
  try {
    for (LineRead read; (read = readLine(in, text)) != LineRead::End;) {
      ++line;
      if (read == LineRead::TooLong) {
        throw ScriptError{"the line is longer than " + std::to_string(kMaxLineLength) + " bytes"};
      }
      const std::vector<Token> tokens = tokenize(text);
      if (tokens.empty()) continue;
      try {
        runner->run(tokens, line);
      } catch (const std::exception& e) {
        throw ScriptError{std::string("run-time error: ") + e.what()};
      }
    }
    if (const auto unused = runner->platform().unused()) {
      line = unused->line;
      throw ScriptError{quote(unused->value) + " was queued but never used"};
    }
  } catch (const ScriptError& e) {
    out.flush();
    err << "error: line " << line << ": " << printable(e.why) << '\n';
    return kScriptFailed;
  }
  return 0;
}

std::optional<std::string> scriptFileRefusal(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code ec;
  switch (fs::status(files::fsPath(path), ec).type()) {
    case fs::file_type::regular: return std::nullopt;
    case fs::file_type::directory: return "is a folder, not a script";
    case fs::file_type::fifo: return "is a pipe, not a script";
    case fs::file_type::socket: return "is a socket, not a script";
    case fs::file_type::block:
    case fs::file_type::character: return "is a device, not a script";
    case fs::file_type::not_found: return "does not exist";
    default: return "cannot be read";
  }
}

}  // namespace pellam::component::script
