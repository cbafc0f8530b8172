// IDispatch of Class1, written by hand: script hosts pass variables as references to variants
// and literals by value, which the stock type-info Invoke cannot coerce to BSTR*. Each
// argument is converted, the vtable member called, and a host's variable given back its value.
#include <cwchar>
#include <iterator>

#include "class1_object.h"
#include "module.h"

namespace pellam::win {

namespace {

constexpr DISPID kFirstId = 0x60030000;

struct Member {
  const wchar_t* name;
  UINT arguments;
  VARTYPE argumentType;
};

// In dispatch-id order; the type library declares the same names and ids.
constexpr Member kMembers[] = {
    {L"Class_Initialize", 0, VT_EMPTY},
    {L"Product_Type", 1, VT_BSTR},
    {L"ReadZPD_ImageFile", 1, VT_BSTR},
    {L"Create_Pellam_Zpd", 1, VT_BSTR},
    {L"Return_FileName_Path", 1, VT_BSTR},
    {L"Load_User_Form", 0, VT_EMPTY},
    {L"Return_File_Name", 2, VT_BSTR},
    {L"Return_Dir_Path", 1, VT_BSTR},
    {L"Initailize_Pellam_Variables_And_Form", 0, VT_EMPTY},
    {L"Unload_Pellam_Form", 0, VT_EMPTY},
    {L"Show_Hide_Pellam_Form", 1, VT_BOOL},
    {L"New_KX_Job_Display_Board_SetUp", 0, VT_EMPTY},
};
constexpr int kMemberCount = static_cast<int>(std::size(kMembers));
constexpr UINT kMostArguments = 2;

// Arguments converted to the member's type, handed back to the host's variables afterwards.
class Arguments {
 public:
  Arguments() {
    for (VARIANT& v : values) VariantInit(&v);
  }
  ~Arguments() {
    for (VARIANT& v : values) VariantClear(&v);
  }
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;

  // The host lists arguments last first; `values` holds them in declared order.
  HRESULT take(const DISPPARAMS& params, const Member& member, UINT* badArgument) {
    for (UINT i = 0; i < member.arguments; ++i) {
      const UINT position = member.arguments - 1 - i;
      VARIANT& given = params.rgvarg[position];
      sources[i] = &given;
      const VARIANT* value = given.vt == (VT_BYREF | VT_VARIANT) ? given.pvarVal : &given;
      const HRESULT hr = VariantChangeType(&values[i], const_cast<VARIANT*>(value), 0, member.argumentType);
      if (FAILED(hr)) {
        if (badArgument) *badArgument = position;
        return DISP_E_TYPEMISMATCH;
      }
    }
    return S_OK;
  }

  // A variable of the member's own type gets the value the member left; one of another type
  // is left as it was, as a host's copy-in of a mismatched variable would be.
  void giveBack(const Member& member) {
    for (UINT i = 0; i < member.arguments; ++i) {
      VARIANT& given = *sources[i];
      VARIANT& value = values[i];
      if (given.vt == (VT_BYREF | VT_VARIANT) && given.pvarVal->vt == member.argumentType) {
        VariantClear(given.pvarVal);
        *given.pvarVal = value;
        VariantInit(&value);
      } else if (given.vt == (VT_BYREF | VT_BSTR) && member.argumentType == VT_BSTR) {
        SysFreeString(*given.pbstrVal);
        *given.pbstrVal = value.bstrVal;
        VariantInit(&value);
      } else if (given.vt == (VT_BYREF | VT_BOOL) && member.argumentType == VT_BOOL) {
        *given.pboolVal = value.boolVal;
      }
    }
  }

  VARIANT values[kMostArguments];
  VARIANT* sources[kMostArguments] = {};
};

HRESULT callMember(Class1Object& o, int index, VARIANT* a, VARIANT& result) {
  switch (index) {
    case 0: return o.Class_Initialize();
    case 1: result.vt = VT_I2; return o.Product_Type(&a[0].bstrVal, &result.iVal);
    case 2: return o.ReadZPD_ImageFile(&a[0].bstrVal, &result);
    case 3: return o.Create_Pellam_Zpd(&a[0].bstrVal, &result);
    case 4: result.vt = VT_BSTR; return o.Return_FileName_Path(&a[0].bstrVal, &result.bstrVal);
    case 5: return o.Load_User_Form(&result);
    case 6: result.vt = VT_BSTR; return o.Return_File_Name(&a[0].bstrVal, &a[1].bstrVal, &result.bstrVal);
    case 7: result.vt = VT_BSTR; return o.Return_Dir_Path(&a[0].bstrVal, &result.bstrVal);
    case 8: return o.Initailize_Pellam_Variables_And_Form(&result);
    case 9: return o.Unload_Pellam_Form(&result);
    case 10: return o.Show_Hide_Pellam_Form(&a[0].boolVal, &result);
    case 11: return o.New_KX_Job_Display_Board_SetUp(&result);
  }
  return DISP_E_MEMBERNOTFOUND;
}

void describe(HRESULT hr, EXCEPINFO& exception) {
  exception = {};
  exception.scode = hr;
  IErrorInfo* info = nullptr;
  if (GetErrorInfo(0, &info) == S_OK && info) {
    info->GetSource(&exception.bstrSource);
    info->GetDescription(&exception.bstrDescription);
    info->Release();
  }
}

}  // namespace

HRESULT Class1Object::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT Class1Object::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (!info) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  ITypeLib* library = nullptr;
  HRESULT hr = LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, &library);
  if (FAILED(hr)) return hr;
  hr = library->GetTypeInfoOfGuid(IID__Class1, info);
  library->Release();
  return hr;
}

HRESULT Class1Object::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (!names || !ids || count == 0) return E_INVALIDARG;
  for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  for (int m = 0; m < kMemberCount; ++m) {
    if (_wcsicmp(names[0], kMembers[m].name) == 0) {
      ids[0] = kFirstId + m;
      return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;  // arguments have no names to call by
    }
  }
  return DISP_E_UNKNOWNNAME;
}

HRESULT Class1Object::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                             EXCEPINFO* exception, UINT* badArgument) {
  const int index = id - kFirstId;
  if (index < 0 || index >= kMemberCount) return DISP_E_MEMBERNOTFOUND;
  if (!(flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET))) return DISP_E_MEMBERNOTFOUND;
  const Member& member = kMembers[index];
  const UINT given = params ? params->cArgs : 0;
  if (params && params->cNamedArgs > 0) return DISP_E_NONAMEDARGS;
  if (given != member.arguments) return DISP_E_BADPARAMCOUNT;

  Arguments arguments;
  if (member.arguments > 0) {
    const HRESULT taken = arguments.take(*params, member, badArgument);
    if (FAILED(taken)) return taken;
  }
  VARIANT value;
  VariantInit(&value);
  const HRESULT hr = callMember(*this, index, arguments.values, value);
  if (FAILED(hr)) {
    VariantClear(&value);
    if (!exception) return hr;
    describe(hr, *exception);
    return DISP_E_EXCEPTION;
  }
  arguments.giveBack(member);
  if (result) {
    *result = value;
  } else {
    VariantClear(&value);
  }
  return S_OK;
}

}  // namespace pellam::win
