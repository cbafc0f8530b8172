#pragma once

#include <windows.h>

namespace pellam::win {

// The module the form's code is in, Pellam.dll or pellam-setup.exe: its window classes and
// resources belong to it.
HINSTANCE moduleInstance();

}  // namespace pellam::win
