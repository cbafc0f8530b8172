#pragma once

#include <deque>
#include <iosfwd>
#include <optional>
#include <string>

#include "ui/dialogs.h"

namespace pellam::component::script {

// The person at the keyboard, played by the script: message boxes are printed as shown and
// answered from the queue; the file dialog returns queued paths; the clock can be fixed.
class ScriptPlatform final : public ui::Dialogs, public ui::Shell, public ui::Clock {
 public:
  explicit ScriptPlatform(std::ostream& out) : out_(out) {}

  ui::Answer msgBox(const std::string& text, ui::Buttons buttons) override;
  std::string openFile(const ui::FileDialogRequest& request) override;
  bool openInViewer(const std::string& path) override;
  ui::DateTime now() override;

  struct Queued {
    std::string value;
    int line;
  };
  void queueAnswer(ui::Answer answer, std::string word, int line);
  void queuePath(std::string path, int line);
  void fixClock(ui::DateTime time) { clock_ = time; }
  // The first queued answer or path that nothing used, if any.
  std::optional<Queued> unused() const;

 private:
  std::ostream& out_;
  std::deque<std::pair<ui::Answer, Queued>> answers_;
  std::deque<Queued> paths_;
  std::optional<ui::DateTime> clock_;
};

}  // namespace pellam::component::script
