#pragma once

namespace pellam::win {

// Gives the process's shared session its platform, once, before the first Class1 makes it:
// Windows' dialogs, or the test answers when the unattended switch is set.
void giveHostPlatform();

}  // namespace pellam::win
