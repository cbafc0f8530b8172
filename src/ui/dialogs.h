#pragma once

#include <string>

namespace pellam::ui {

enum class Buttons { OK, OKCancel, YesNo };
enum class Answer { OK, Cancel, Yes, No };

struct FileDialogRequest {
  std::string filter;      // "Image Files (*.zpd)|*.zpd|..."
  int filterIndex = 1;     // 1-based, as the common dialog counts
  bool hideReadOnly = false;
};

// Everything a person is asked or told.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual Answer msgBox(const std::string& text, Buttons buttons) = 0;
  // An error trap's text: an OK box like any other unless the face marks it as a warning.
  virtual Answer errorBox(const std::string& text) { return msgBox(text, Buttons::OK); }
  // The chosen full path, or an empty string when the person cancels.
  virtual std::string openFile(const FileDialogRequest& request) = 0;
};

// Opens a file in the desktop's viewer; false when that could not be started.
class Shell {
 public:
  virtual ~Shell() = default;
  virtual bool openInViewer(const std::string& path) = 0;
};

struct DateTime {
  int year, month, day, hour, minute, second;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime now() = 0;
};

}  // namespace pellam::ui
