#pragma once

#include <sstream>
#include <string>

#include "component/script/script_platform.h"
#include "ui/dialogs.h"

namespace pellam::win {

// For tests only: with PELLAM_TEST_ANSWERS naming a file of `answer`, `choose` and `clock`
// lines (as in form scripts), questions are answered from it and every message box is printed
// to the host's standard output as a form script prints it, in order with the host's own lines.
class UnattendedHost final : public ui::Dialogs, public ui::Shell, public ui::Clock {
 public:
  // The host of this process, or nullptr when the switch is not set.
  static UnattendedHost* fromEnvironment();

  ui::Answer msgBox(const std::string& text, ui::Buttons buttons) override;
  std::string openFile(const ui::FileDialogRequest& request) override { return platform_.openFile(request); }
  bool openInViewer(const std::string& path) override { return platform_.openInViewer(path); }
  ui::DateTime now() override { return platform_.now(); }

 private:
  UnattendedHost() = default;
  void read(const std::string& answersFile);
  void flush();

  std::ostringstream transcript_;
  component::script::ScriptPlatform platform_{transcript_};
};

}  // namespace pellam::win
