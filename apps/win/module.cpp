#include "module.h"

#include <atomic>

#include "class_factory.h"

namespace pellam::win {

namespace {
HMODULE g_module = nullptr;  // set once by DllMain
std::atomic<long> g_objects{0};
std::atomic<long> g_locks{0};
}  // namespace

HMODULE moduleHandle() { return g_module; }

std::wstring modulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD n = GetModuleFileNameW(g_module, path.data(), static_cast<DWORD>(path.size()));
    if (n < path.size()) {
      path.resize(n);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

void objectCreated() { ++g_objects; }
void objectDestroyed() { --g_objects; }
void lockServer(bool lock) { lock ? ++g_locks : --g_locks; }
bool canUnload() { return g_objects == 0 && g_locks == 0; }

}  // namespace pellam::win

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    pellam::win::g_module = instance;
    DisableThreadLibraryCalls(instance);
  }
  return TRUE;
}

extern "C" HRESULT WINAPI DllCanUnloadNow() { return pellam::win::canUnload() ? S_OK : S_FALSE; }

extern "C" HRESULT WINAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
  return pellam::win::getClassObject(clsid, iid, out);
}
