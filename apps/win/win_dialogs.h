#pragma once

#include "ui/dialogs.h"

namespace pellam::win {

// Message boxes and the open-file dialog of Windows itself, owned by the host's active window.
class WinDialogs final : public ui::Dialogs {
 public:
  ui::Answer msgBox(const std::string& text, ui::Buttons buttons) override;
  std::string openFile(const ui::FileDialogRequest& request) override;
};

}  // namespace pellam::win
