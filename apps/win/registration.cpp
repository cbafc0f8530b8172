// Self-registration: the class, its ProgID, the type library and the interface, machine-wide
// (regsvr32) or for the current user alone (regsvr32 /n /i:user). Unregistering removes
// exactly these keys; the ones both widths share stay while the other width is registered.
#include <string>

#include <windows.h>
#include <olectl.h>

#include "module.h"
#include "pellam.h"

namespace pellam::win {

namespace {

constexpr wchar_t kProgId[] = L"PellamSetup.Class1";
// The system's marshaller for dual interfaces described by a type library.
constexpr wchar_t kTypeLibMarshaler[] = L"{00020424-0000-0000-C000-000000000046}";
#ifdef _WIN64
constexpr wchar_t kOwnPlatform[] = L"win64";
constexpr REGSAM kOtherView = KEY_WOW64_32KEY;
#else
constexpr wchar_t kOwnPlatform[] = L"win32";
constexpr REGSAM kOtherView = KEY_WOW64_64KEY;
#endif

std::wstring text(REFGUID id) {
  wchar_t buffer[40];
  StringFromGUID2(id, buffer, 40);
  return buffer;
}

struct Keys {
  std::wstring root;  // "Software\Classes" under HKLM or HKCU
  std::wstring clsid = root + L"\\CLSID\\" + text(CLSID_Class1);
  std::wstring progId = root + L"\\" + kProgId;
  std::wstring typeLib = root + L"\\TypeLib\\" + text(LIBID_PellamSetup);
  std::wstring typeLibVersion = typeLib + L"\\1.0";
  std::wstring interfaceKey = root + L"\\Interface\\" + text(IID__Class1);
};

LSTATUS setValue(HKEY hive, const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  HKEY opened = nullptr;
  LSTATUS status = RegCreateKeyExW(hive, key.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &opened, nullptr);
  if (status != ERROR_SUCCESS) return status;
  const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  status = RegSetValueExW(opened, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), bytes);
  RegCloseKey(opened);
  return status;
}

bool otherWidthRegistered(HKEY hive, const Keys& keys) {
  HKEY opened = nullptr;
  const std::wstring server = keys.clsid + L"\\InprocServer32";
  if (RegOpenKeyExW(hive, server.c_str(), 0, KEY_READ | kOtherView, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

void removeTree(HKEY hive, const std::wstring& key) {
  if (RegDeleteTreeW(hive, key.c_str()) == ERROR_SUCCESS) RegDeleteKeyW(hive, key.c_str());
}

HRESULT unregisterFrom(HKEY hive) {
  const Keys keys{L"Software\\Classes"};
  removeTree(hive, keys.clsid);
  removeTree(hive, keys.typeLibVersion + L"\\0\\" + kOwnPlatform);
  if (!otherWidthRegistered(hive, keys)) {
    removeTree(hive, keys.progId);
    removeTree(hive, keys.typeLib);
    removeTree(hive, keys.interfaceKey);
  }
  return S_OK;
}

HRESULT registerIn(HKEY hive) {
  const Keys keys{L"Software\\Classes"};
  const std::wstring path = modulePath();
  const std::wstring folder = path.substr(0, path.find_last_of(L"\\/") + 1);
  const std::wstring clsid = text(CLSID_Class1);
  const std::wstring libid = text(LIBID_PellamSetup);
  const struct {
    const std::wstring& key;
    std::wstring subkey;
    const wchar_t* name;
    std::wstring value;
  } values[] = {
      {keys.clsid, L"", nullptr, kProgId},
      {keys.clsid, L"\\InprocServer32", nullptr, path},
      {keys.clsid, L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {keys.clsid, L"\\ProgID", nullptr, kProgId},
      {keys.clsid, L"\\TypeLib", nullptr, libid},
      {keys.clsid, L"\\VERSION", nullptr, L"1.0"},
      {keys.progId, L"", nullptr, kProgId},
      {keys.progId, L"\\CLSID", nullptr, clsid},
      {keys.typeLibVersion, L"", nullptr, L"PellamSetup"},
      {keys.typeLibVersion, L"\\0\\" + std::wstring(kOwnPlatform), nullptr, path},
      {keys.typeLibVersion, L"\\FLAGS", nullptr, L"0"},
      {keys.typeLibVersion, L"\\HELPDIR", nullptr, folder},
      {keys.interfaceKey, L"", nullptr, L"_Class1"},
      {keys.interfaceKey, L"\\ProxyStubClsid", nullptr, kTypeLibMarshaler},
      {keys.interfaceKey, L"\\ProxyStubClsid32", nullptr, kTypeLibMarshaler},
      {keys.interfaceKey, L"\\TypeLib", nullptr, libid},
      {keys.interfaceKey, L"\\TypeLib", L"Version", L"1.0"},
  };
  for (const auto& v : values) {
    const LSTATUS status = setValue(hive, v.key + v.subkey, v.name, v.value);
    if (status != ERROR_SUCCESS) {
      unregisterFrom(hive);
      return HRESULT_FROM_WIN32(status);
    }
  }
  return S_OK;
}

// DllInstall's command line chooses the hive: "user" for the current user, none for the machine.
HKEY hiveFor(LPCWSTR commandLine) {
  if (!commandLine || !*commandLine) return HKEY_LOCAL_MACHINE;
  if (_wcsicmp(commandLine, L"user") == 0) return HKEY_CURRENT_USER;
  return nullptr;
}

}  // namespace

}  // namespace pellam::win

extern "C" HRESULT WINAPI DllRegisterServer() { return pellam::win::registerIn(HKEY_LOCAL_MACHINE); }
extern "C" HRESULT WINAPI DllUnregisterServer() { return pellam::win::unregisterFrom(HKEY_LOCAL_MACHINE); }

extern "C" HRESULT WINAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  HKEY hive = pellam::win::hiveFor(commandLine);
  if (!hive) return E_INVALIDARG;
  return install ? pellam::win::registerIn(hive) : pellam::win::unregisterFrom(hive);
}
