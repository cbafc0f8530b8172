#include "component/script/script_platform.h"

#include <ostream>

#include "component/platform.h"
#include "component/script/script_error.h"
#include "component/script/script_tokens.h"

namespace pellam::component::script {

namespace {
const char* buttonsName(ui::Buttons buttons) {
  switch (buttons) {
    case ui::Buttons::OK: return "OK";
    case ui::Buttons::OKCancel: return "OKCancel";
    case ui::Buttons::YesNo: return "YesNo";
  }
  return "";
}

const char* answerName(ui::Answer answer) {
  switch (answer) {
    case ui::Answer::OK: return "OK";
    case ui::Answer::Cancel: return "Cancel";
    case ui::Answer::Yes: return "Yes";
    case ui::Answer::No: return "No";
  }
  return "";
}

bool fits(ui::Answer answer, ui::Buttons buttons) {
  if (buttons == ui::Buttons::OKCancel) return answer == ui::Answer::OK || answer == ui::Answer::Cancel;
  return answer == ui::Answer::Yes || answer == ui::Answer::No;
}
}  // namespace

ui::Answer ScriptPlatform::msgBox(const std::string& text, ui::Buttons buttons) {
  if (buttons == ui::Buttons::OK) {
    out_ << "msgbox " << quote(text) << " OK\n";
    return ui::Answer::OK;
  }
  if (answers_.empty()) {
    throw ScriptError{"no answer queued for msgbox " + quote(text) + " " + buttonsName(buttons)};
  }
  const auto [answer, queued] = answers_.front();
  if (!fits(answer, buttons)) {
    throw ScriptError{"answer " + queued.value + " (queued on line " + std::to_string(queued.line) +
                      ") does not fit msgbox " + quote(text) + " " + buttonsName(buttons)};
  }
  answers_.pop_front();
  out_ << "msgbox " << quote(text) << ' ' << buttonsName(buttons) << " -> " << answerName(answer) << '\n';
  return answer;
}

std::string ScriptPlatform::openFile(const ui::FileDialogRequest&) {
  if (paths_.empty()) throw ScriptError{"no path queued for the file dialog"};
  std::string path = std::move(paths_.front().value);
  paths_.pop_front();
  return path;
}

bool ScriptPlatform::openInViewer(const std::string&) { return true; }

ui::DateTime ScriptPlatform::now() { return clock_ ? *clock_ : SystemClock().now(); }

void ScriptPlatform::queueAnswer(ui::Answer answer, std::string word, int line) {
  answers_.emplace_back(answer, Queued{std::move(word), line});
}

void ScriptPlatform::queuePath(std::string path, int line) { paths_.push_back({std::move(path), line}); }

std::optional<ScriptPlatform::Queued> ScriptPlatform::unused() const {
  std::optional<Queued> first;
  if (!answers_.empty()) first = answers_.front().second;
  if (!paths_.empty() && (!first || paths_.front().line < first->line)) first = paths_.front();
  return first;
}

}  // namespace pellam::component::script
