#pragma once

#include <windows.h>

#include "ui/dialogs.h"

namespace pellam::win {

// Message boxes and the open-file dialog of Windows itself, owned by the form's window when
// it shows, by the host's active window otherwise.
class WinDialogs final : public ui::Dialogs {
 public:
  void setOwner(HWND owner) { owner_ = owner; }
  ui::Answer msgBox(const std::string& text, ui::Buttons buttons) override;
  std::string openFile(const ui::FileDialogRequest& request) override;

 private:
  HWND owner() const;
  HWND owner_ = nullptr;
};

}  // namespace pellam::win
