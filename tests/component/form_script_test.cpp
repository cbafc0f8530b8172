#include <gtest/gtest.h>

#include <sys/stat.h>

#include <sstream>
#include <stdexcept>
#include <streambuf>

#include "component/script/form_script.h"
#include "component/script/script_tokens.h"
#include "support/desk.h"

namespace pellam::component::script {
namespace {

struct ScriptRun {
  int status;
  std::string out, err;
};

ScriptRun run(const std::string& text) {
  std::istringstream in(text);
  std::ostringstream out, err;
  const int status = runFormScript(in, out, err);
  return {status, out.str(), err.str()};
}

const std::string kStart = "call Initailize_Pellam_Variables_And_Form\n";

TEST(ScriptTokens, WordsStringsEscapesAndComments) {
  const auto tokens = tokenize(R"(text TextBox5 "a \"b\"\\\r\n\t" # a comment)");
  ASSERT_EQ(tokens.size(), 3u);
  EXPECT_EQ(tokens[0].text, "text");
  EXPECT_FALSE(tokens[0].quoted);
  EXPECT_EQ(tokens[2].text, "a \"b\"\\\r\n\t");
  EXPECT_TRUE(tokens[2].quoted);
  EXPECT_EQ(quote(tokens[2].text), R"("a \"b\"\\\r\n\t")");
  EXPECT_EQ(tokenize("choose \"\"").at(1).text, "");
  EXPECT_EQ(tokenize("choose \"a # b\"").at(1).text, "a # b");
  EXPECT_TRUE(tokenize("   # only a comment").empty());
}

TEST(FormScript, RefusesMistakesByNameWithTheLine) {
  const std::pair<std::string, std::string> cases[] = {
      {"frobnicate", "error: line 2: unknown command frobnicate\n"},
      {"call Save_Everything", "error: line 2: unknown member Save_Everything\n"},
      {"select ComboBox100 1", "error: line 2: unknown control ComboBox100\n"},
      {"call Return_Dir_Path", "error: line 2: Return_Dir_Path takes 1 argument(s), not 0\n"},
      {"select ComboBox1 6", "error: line 2: index 6 is out of range for ComboBox1 (count 6)\n"},
      {"select ComboBox1 two", "error: line 2: bad index two\n"},
      {"select CommandButton4 1", "error: line 2: CommandButton4 is not a combo box or list box\n"},
      {"click ComboBox1", "error: line 2: ComboBox1 is not a command button or option button\n"},
      {"text TextBox5 unquoted", "error: line 2: the text must be a quoted string\n"},
      {"answer Maybe", "error: line 2: bad answer Maybe (Yes, No, OK or Cancel)\n"},
      {"clock \"2026-13-01 00:00:00\"", "error: line 2: bad time \"2026-13-01 00:00:00\" (give \"YYYY-MM-DD HH:MM:SS\")\n"},
      {"bytes 34000 5", "error: line 2: bytes 34000..34004 lie outside the image (0..34001)\n"},
      {"show \"ComboBox1", "error: line 2: string not closed\n"},
      {"call Show_Hide_Pellam_Form \"yes\"", "error: line 2: bad argument \"yes\" (give True or False)\n"},
      {"call Return_Dir_Path somewhere", "error: line 2: bad argument somewhere (give a quoted string, a number, True or False)\n"},
      {"select MultiPage1 3", "error: line 2: page 3 of MultiPage1 is not showing\n"},
      // Numbers past an int, and sums of them, are refused rather than wrapped.
      {"bytes 1 2147483647", "error: line 2: bytes 1..2147483647 lie outside the image (0..34001)\n"},
      {"bytes 2147483647", "error: line 2: bytes 2147483647..2147483647 lie outside the image (0..34001)\n"},
      {"select ComboBox1 99999999999", "error: line 2: bad index 99999999999\n"},
      {"clock \"2026-01-01 +1:00:00\"", "error: line 2: bad time \"2026-01-01 +1:00:00\" (give \"YYYY-MM-DD HH:MM:SS\")\n"},
      {"clock \"2026-12-31 23:60:00\"", "error: line 2: bad time \"2026-12-31 23:60:00\" (give \"YYYY-MM-DD HH:MM:SS\")\n"},
      // A script's control characters never reach the terminal raw.
      {"frob\x1b[2Jnicate", "error: line 2: unknown command frob\\x1b[2Jnicate\n"},
      {"answer \"\x1b]0;x\x07\"", "error: line 2: bad answer \\x1b]0;x\\x07 (Yes, No, OK or Cancel)\n"},
      {"clock \"\x7f\r\"", "error: line 2: bad time \"\\x7f\\r\" (give \"YYYY-MM-DD HH:MM:SS\")\n"},
  };
  for (const auto& [line, error] : cases) {
    const ScriptRun r = run(kStart + line + "\nshow UserForm1\n");
    EXPECT_EQ(r.status, 2) << line;
    EXPECT_EQ(r.err, error) << line;
    EXPECT_EQ(r.out, "") << "nothing after the bad line runs";
  }
  // The ends of every field are times.
  EXPECT_EQ(run(kStart + "clock \"2026-01-01 00:00:00\"\nclock \"2026-12-31 23:59:59\"\n").status, 0);
}

TEST(FormScript, QuestionsNeedQueuedAnswersThatFit) {
  testing::TempFolder tmp;
  const std::string question = "call Product_Type \"" + tmp.write("short.zpd", "x") + "\"\n";
  // A question with none queued, or with a fitting answer, is in the unanswered_question and
  // host_members scripts.
  ScriptRun r = run(kStart + "answer OK\n" + question);
  EXPECT_EQ(r.err,
            "error: line 3: answer OK (queued on line 2) does not fit msgbox \"Select File is not Pellam Type Continue "
            "Loading?\" YesNo\n");

  r = run(kStart + "call Load_User_Form\nanswer Yes\n");
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.err, "error: line 3: \"Yes\" was queued but never used\n");

  r = run(kStart + "choose \"a.zpd\"\nchoose \"b.zpd\"\ncall Return_FileName_Path \"*.zpd\"\n");
  EXPECT_EQ(r.out, "=> \"a.zpd\"\n");
  EXPECT_EQ(r.err, "error: line 3: \"b.zpd\" was queued but never used\n");

  r = run(kStart + "call Return_FileName_Path \"*.zpd\"\n");
  EXPECT_EQ(r.err, "error: line 2: no path queued for the file dialog\n");
}

// An error that escapes a handler is reported once and the script goes on; a handler fired
// from another's code leaves its error to the caller.
TEST(FormScript, AnEscapedErrorIsReportedAndTheSessionGoesOn) {
  std::istringstream in(kStart + "click CommandButton17\nclick CommandButton4\nshow ComboBox1\n");
  std::ostringstream out, err;
  const int status = runFormScript(in, out, err, [](Session& s) {
    s.form.CommandButton17.onClick = [&s] { s.form.CommandButton4.click(); };
    s.form.CommandButton4.onClick = [] { throw std::logic_error("a fault of ours"); };
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(out.str(), "msgbox \"Unexpected Error: a fault of ours\" OK\n"
                       "msgbox \"Unexpected Error: a fault of ours\" OK\n"
                       "ComboBox1 index=-1 text=\"\" count=6 visible=1 enabled=1\n");
}

// A stream without line ends, as /dev/zero gives on standard input.
class EndlessZeros : public std::streambuf {
  int_type underflow() override {
    setg(zeros_, zeros_, zeros_ + sizeof zeros_);
    return 0;
  }
  char zeros_[4096] = {};
};

TEST(FormScript, ReadsLinesUpToTheLimitOnly) {
  const std::string limit = std::to_string(kMaxLineLength);
  const std::string longest = "#" + std::string(kMaxLineLength - 1, 'x') + "\n";
  ScriptRun r = run(kStart + longest + "show UserForm1\n");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "UserForm1 loaded=1 visible=0\n");

  r = run(kStart + "#" + longest + "show UserForm1\n");
  EXPECT_EQ(r.err, "error: line 2: the line is longer than " + limit + " bytes\n");
  EXPECT_EQ(r.out, "");

  EndlessZeros zeros;
  std::istream endless(&zeros);
  std::ostringstream out, err;
  EXPECT_EQ(runFormScript(endless, out, err), kScriptFailed);
  EXPECT_EQ(err.str(), "error: line 1: the line is longer than " + limit + " bytes\n");
}

TEST(FormScript, RunsRegularFilesOnly) {
  testing::TempFolder tmp;
  ASSERT_EQ(mkfifo(tmp.file("pipe").c_str(), 0600), 0);
  const std::pair<std::string, std::optional<std::string>> cases[] = {
      {tmp.write("job.pellam", kStart), std::nullopt},
      {tmp.path().string(), "is a folder, not a script"},
      {tmp.file("pipe"), "is a pipe, not a script"},
      {"/dev/zero", "is a device, not a script"},
      {tmp.file("missing.pellam"), "does not exist"},
  };
  for (const auto& [path, refusal] : cases) EXPECT_EQ(scriptFileRefusal(path), refusal) << path;
}

}  // namespace
}  // namespace pellam::component::script
