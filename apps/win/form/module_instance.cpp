#include "module_instance.h"

namespace pellam::win {

HINSTANCE moduleInstance() {
  static const HINSTANCE instance = [] {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&moduleInstance), &module);
    return module;
  }();
  return instance;
}

}  // namespace pellam::win
