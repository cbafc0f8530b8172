#pragma once

#include <windows.h>

namespace pellam::win {

// Gives the process's shared session its platform, once, before the first Class1 makes it:
// Windows' dialogs, or the test answers when the unattended switch is set.
void giveHostPlatform();
// The window that owns the message boxes and the file dialog, or nullptr for the host's active one.
void setDialogOwner(HWND owner);

}  // namespace pellam::win
