#pragma once

#include <iosfwd>
#include <string>
#include <utility>

#include "ui/dialogs.h"

namespace pellam::component {

// What a session uses when no face has given it dialogs: messages go to a stream and every
// question gets its careful answer (No, Cancel); the file dialog is cancelled.
class UnattendedDialogs final : public ui::Dialogs {
 public:
  explicit UnattendedDialogs(std::ostream& log) : log_(log) {}
  ui::Answer msgBox(const std::string& text, ui::Buttons buttons) override;
  std::string openFile(const ui::FileDialogRequest& request) override;

 private:
  std::ostream& log_;
};

class NoViewer final : public ui::Shell {
 public:
  bool openInViewer(const std::string&) override { return false; }
};

// The desktop's own program for a text file: Notepad on Windows, xdg-open elsewhere. It is
// started and left to run; false only when it could not be started at all.
class DesktopViewer final : public ui::Shell {
 public:
  DesktopViewer();
  explicit DesktopViewer(std::string program) : program_(std::move(program)) {}
  bool openInViewer(const std::string& path) override;

 private:
  std::string program_;
};

class SystemClock final : public ui::Clock {
 public:
  ui::DateTime now() override;
};

}  // namespace pellam::component
