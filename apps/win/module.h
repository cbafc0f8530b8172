#pragma once

#include <string>

#include <windows.h>

// What the whole DLL shares: its own handle and path, and the count of live objects and
// server locks that decides whether it may be unloaded.
namespace pellam::win {

HMODULE moduleHandle();
std::wstring modulePath();

void objectCreated();
void objectDestroyed();
void lockServer(bool lock);
bool canUnload();

}  // namespace pellam::win
