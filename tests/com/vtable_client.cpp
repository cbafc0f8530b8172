// Calls Class1 through its vtable, as an early-bound host does, and prints what it got:
//   pellam_vtable_client members FOLDER   every member once, with non-Latin paths under FOLDER
//   pellam_vtable_client lifetime         a thousand objects made and released
//   pellam_vtable_client typelib DLL      the members the DLL's type library publishes
// Lines are UTF-8, written straight to the handle.
#include <string>

#include <windows.h>
#include <oleauto.h>
#include <psapi.h>

#include "pellam.h"
#include "wide_text.h"

namespace {

void say(const std::string& line) {
  const std::string text = line + "\n";
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

std::string hex(HRESULT hr) {
  char buffer[16];
  wsprintfA(buffer, "%08lX", static_cast<unsigned long>(hr));
  return buffer;
}

// A BSTR the client owns, passed by reference as the interface wants.
struct Text {
  explicit Text(const std::wstring& s) : value(SysAllocStringLen(s.data(), static_cast<UINT>(s.size()))) {}
  ~Text() { SysFreeString(value); }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  std::string utf8() const { return pellam::win::utf8(value); }
  BSTR value;
};

_Class1* create() {
  _Class1* object = nullptr;
  const HRESULT hr = CoCreateInstance(CLSID_Class1, nullptr, CLSCTX_INPROC_SERVER, IID__Class1,
                                      reinterpret_cast<void**>(&object));
  if (FAILED(hr)) say("create failed " + hex(hr));
  return object;
}

int members(const std::wstring& folder) {
  _Class1* o = create();
  if (!o) return 1;
  VARIANT empty;
  VariantInit(&empty);
  o->Class_Initialize();
  o->Initailize_Pellam_Variables_And_Form(&empty);
  o->New_KX_Job_Display_Board_SetUp(&empty);
  o->Load_User_Form(&empty);

  VARIANT_BOOL shown = VARIANT_FALSE;
  o->Show_Hide_Pellam_Form(&shown, &empty);
  say("Show_Hide_Pellam_Form VT " + std::to_string(empty.vt));

  const std::wstring job = folder + L"\\Ωμέγα-Čáp\\Жук.txt";
  Text path(job);
  Text name(L"Жук.txt");
  BSTR result = nullptr;
  o->Return_File_Name(&path.value, &name.value, &result);
  say("Return_File_Name " + pellam::win::utf8(result));
  SysFreeString(result);
  const HRESULT saved = o->Create_Pellam_Zpd(&path.value, &empty);
  say("Create_Pellam_Zpd " + hex(saved) + " path " + (path.utf8() == pellam::win::utf8(job) ? "kept" : "changed"));
  o->Return_Dir_Path(&path.value, &result);
  say("Return_Dir_Path " + pellam::win::utf8(result));
  SysFreeString(result);

  Text zpd(folder + L"\\Ωμέγα-Čáp\\Жук.zpd");
  short type = 0;
  o->Product_Type(&zpd.value, &type);
  say("Product_Type " + std::to_string(type));
  o->ReadZPD_ImageFile(&zpd.value, &empty);

  Text filter(L"Pellam Files (*.zpd)|*.zpd");
  o->Return_FileName_Path(&filter.value, &result);
  say("Return_FileName_Path \"" + pellam::win::utf8(result) + "\"");
  SysFreeString(result);

  // A question nobody answers fails the call; the text waits in the error info.
  Text foreign(L"C:\\pellam\\members.vbs");
  const HRESULT failed = o->Product_Type(&foreign.value, &type);
  IErrorInfo* error = nullptr;
  BSTR description = nullptr;
  if (GetErrorInfo(0, &error) == S_OK) {
    error->GetDescription(&description);
    error->Release();
  }
  say("Product_Type unanswered " + hex(failed) + " " + pellam::win::utf8(description));
  SysFreeString(description);

  o->Unload_Pellam_Form(&empty);
  o->Release();
  say("DONE");
  return 0;
}

SIZE_T privateBytes() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof counters);
  return counters.PrivateUsage;
}

// Memory is compared after a warm-up, so the session's one-time start counts for nothing.
int lifetime() {
  auto cycles = [](int n) {
    for (int i = 0; i < n; ++i) {
      _Class1* o = create();
      if (!o) return false;
      VARIANT empty;
      VariantInit(&empty);
      o->New_KX_Job_Display_Board_SetUp(&empty);
      o->Release();
    }
    return true;
  };
  if (!cycles(100)) return 1;
  const SIZE_T before = privateBytes();
  if (!cycles(1000)) return 1;
  const SIZE_T after = privateBytes();
  say(std::string("growth over 1000 cycles ") + (after < before + 64 * 1024 ? "under 64 KB" : "too large: " + std::to_string(after - before)));

  using CanUnload = HRESULT(WINAPI*)();
  HMODULE dll = GetModuleHandleW(L"Pellam.dll");
  auto canUnload = reinterpret_cast<CanUnload>(reinterpret_cast<void*>(GetProcAddress(dll, "DllCanUnloadNow")));
  if (!canUnload) {
    say("DllCanUnloadNow missing");
    return 1;
  }
  _Class1* held = create();
  say(std::string("DllCanUnloadNow with an object ") + (canUnload() == S_OK ? "yes" : "no"));
  held->Release();
  say(std::string("DllCanUnloadNow after release ") + (canUnload() == S_OK ? "yes" : "no"));
  IClassFactory* factory = nullptr;
  CoGetClassObject(CLSID_Class1, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, reinterpret_cast<void**>(&factory));
  factory->LockServer(TRUE);
  say(std::string("DllCanUnloadNow with a lock ") + (canUnload() == S_OK ? "yes" : "no"));
  factory->LockServer(FALSE);
  factory->Release();
  say(std::string("DllCanUnloadNow unlocked ") + (canUnload() == S_OK ? "yes" : "no"));
  say("DONE");
  return 0;
}

std::string typeName(const TYPEDESC& type) {
  if (type.vt == VT_PTR) return typeName(*type.lptdesc) + "*";
  switch (type.vt) {
    case VT_BSTR: return "BSTR";
    case VT_I2: return "short";
    case VT_BOOL: return "VARIANT_BOOL";
    case VT_VARIANT: return "VARIANT";
    case VT_HRESULT: return "HRESULT";
    default: return "vt" + std::to_string(type.vt);
  }
}

// The interface as a host's compiler sees it: names, dispatch ids, argument kinds, results.
int typelib(const std::wstring& dll) {
  ITypeLib* library = nullptr;
  if (FAILED(LoadTypeLibEx(dll.c_str(), REGKIND_NONE, &library))) {
    say("no type library");
    return 1;
  }
  BSTR name = nullptr;
  library->GetDocumentation(-1, &name, nullptr, nullptr, nullptr);
  say("library " + pellam::win::utf8(name));
  SysFreeString(name);
  ITypeInfo* info = nullptr;
  library->GetTypeInfoOfGuid(IID__Class1, &info);
  HREFTYPE vtableRef = 0;
  ITypeInfo* vtable = nullptr;
  if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &vtableRef))) info->GetRefTypeInfo(vtableRef, &vtable);
  TYPEATTR* attributes = nullptr;
  vtable->GetTypeAttr(&attributes);
  say(std::string("interface dual ") + ((attributes->wTypeFlags & TYPEFLAG_FDUAL) ? "yes" : "no"));
  for (UINT f = 0; f < attributes->cFuncs; ++f) {
    FUNCDESC* function = nullptr;
    vtable->GetFuncDesc(f, &function);
    BSTR names[8] = {};
    UINT count = 0;
    vtable->GetNames(function->memid, names, 8, &count);
    std::string line = hex(function->memid) + " " + pellam::win::utf8(names[0]) + "(";
    for (SHORT p = 0; p < function->cParams; ++p) {
      const ELEMDESC& parameter = function->lprgelemdescParam[p];
      const USHORT flags = parameter.paramdesc.wParamFlags;
      if (p) line += ", ";
      if (flags & PARAMFLAG_FIN) line += "in ";
      if (flags & PARAMFLAG_FOUT) line += "out ";
      if (flags & PARAMFLAG_FRETVAL) line += "retval ";
      line += typeName(parameter.tdesc);
      if (static_cast<UINT>(p + 1) < count) {
        line += ' ';
        line += pellam::win::utf8(names[p + 1]);
      }
    }
    say(line + ")");
    for (BSTR n : names) SysFreeString(n);
    vtable->ReleaseFuncDesc(function);
  }
  vtable->ReleaseTypeAttr(attributes);
  vtable->Release();
  info->Release();
  ITypeInfo* coclass = nullptr;
  if (SUCCEEDED(library->GetTypeInfoOfGuid(CLSID_Class1, &coclass))) {
    coclass->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    say("coclass " + pellam::win::utf8(name));
    SysFreeString(name);
    coclass->Release();
  }
  library->Release();
  say("DONE");
  return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  CoInitialize(nullptr);
  const std::wstring mode = argc > 1 ? argv[1] : L"";
  int status = 2;
  if (mode == L"members" && argc > 2) status = members(argv[2]);
  if (mode == L"lifetime") status = lifetime();
  if (mode == L"typelib" && argc > 2) status = typelib(argv[2]);
  CoUninitialize();
  return status;
}
