#include "module.h"

#include <atomic>
#include <memory>
#include <vector>

#include "component/shared_session.h"

#include "class_factory.h"
#include "form_host.h"
#include "host_session.h"

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
// A server lock keeps the shared session as an object does.
void lockServer(bool lock) {
  static std::vector<std::unique_ptr<component::SharedSession::User>> held;
  if (lock) {
    giveHostPlatform();
    held.push_back(std::make_unique<component::SharedSession::User>());
    ++g_locks;
  } else if (!held.empty()) {
    held.pop_back();
    --g_locks;
  }
}
bool canUnload() { return g_objects == 0 && g_locks == 0; }

}  // namespace pellam::win

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    pellam::win::g_module = instance;
    DisableThreadLibraryCalls(instance);
  }
  return TRUE;
}

// COM unloads the DLL only after a yes: the job goes with it then, and not before.
extern "C" HRESULT WINAPI DllCanUnloadNow() {
  if (!pellam::win::canUnload() || pellam::component::SharedSession::users() > 0) return S_FALSE;
  pellam::win::endForm();
  return pellam::component::SharedSession::endIfUnused() ? S_OK : S_FALSE;
}

extern "C" HRESULT WINAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
  return pellam::win::getClassObject(clsid, iid, out);
}
