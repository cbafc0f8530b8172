#include "class1_object.h"

#include <exception>
#include <new>
#include <string>

#include "component/script/script_error.h"
#include "form_host.h"
#include "module.h"
#include "wide_text.h"

namespace pellam::win {

namespace {

// The text travels in the thread's error info, where Invoke and early-bound hosts find it.
HRESULT fail(const std::string& text) {
  ICreateErrorInfo* create = nullptr;
  if (SUCCEEDED(CreateErrorInfo(&create))) {
    const std::wstring description = wide(text);
    create->SetSource(const_cast<LPOLESTR>(L"PellamSetup.Class1"));
    create->SetDescription(const_cast<LPOLESTR>(description.c_str()));
    IErrorInfo* info = nullptr;
    if (SUCCEEDED(create->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)))) {
      SetErrorInfo(0, info);
      info->Release();
    }
    create->Release();
  }
  return E_UNEXPECTED;
}

// No exception may cross into the host: each one becomes an HRESULT with its text.
template <class Body>
HRESULT guarded(Body&& body) {
  try {
    body();
    return S_OK;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception& e) {
    return fail(e.what());
  } catch (const component::script::ScriptError& e) {
    return fail(e.why);
  } catch (...) {
    return fail("Unexpected error");
  }
}

// Every member may have loaded, shown, hidden or unloaded the form: its window follows.
template <class Body>
HRESULT followed(component::Session& session, Body&& body) {
  const HRESULT result = guarded(body);
  guarded([&] { followForm(session); });
  return result;
}

// A by-reference string: the core works on UTF-8 and whatever it leaves goes back to the host.
struct InOutText {
  explicit InOutText(BSTR* slot) : slot(slot), text(utf8(*slot)), before(text) {}
  void writeBack() {
    if (text == before) return;
    BSTR changed = newBstr(text);
    SysFreeString(*slot);
    *slot = changed;
  }
  BSTR* slot;
  std::string text;
  std::string before;
};

void setEmpty(VARIANT* result) { VariantInit(result); }

}  // namespace

// The form of the session is drawn from the first object on.
Class1Object::Class1Object() {
  objectCreated();
  guarded([&] { followForm(*user_); });
}
Class1Object::~Class1Object() { objectDestroyed(); }

HRESULT Class1Object::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  if (iid == IID_IUnknown || iid == IID_IDispatch || iid == IID__Class1) {
    *out = static_cast<_Class1*>(this);
    AddRef();
    return S_OK;
  }
  if (iid == IID_ISupportErrorInfo) {
    *out = static_cast<ISupportErrorInfo*>(this);
    AddRef();
    return S_OK;
  }
  *out = nullptr;
  return E_NOINTERFACE;
}

ULONG Class1Object::AddRef() { return ++references_; }

ULONG Class1Object::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT Class1Object::InterfaceSupportsErrorInfo(REFIID iid) { return iid == IID__Class1 ? S_OK : S_FALSE; }

HRESULT Class1Object::Class_Initialize() {
  return followed(*user_, [&] { class1_.Class_Initialize(); });
}

HRESULT Class1Object::Product_Type(BSTR* TempFileString, short* result) {
  if (!TempFileString || !result) return E_POINTER;
  return followed(*user_, [&] {
    InOutText path(TempFileString);
    *result = class1_.Product_Type(path.text);
    path.writeBack();
  });
}

HRESULT Class1Object::ReadZPD_ImageFile(BSTR* TempString, VARIANT* result) {
  if (!TempString || !result) return E_POINTER;
  setEmpty(result);
  return followed(*user_, [&] {
    InOutText path(TempString);
    class1_.ReadZPD_ImageFile(path.text);
    path.writeBack();
  });
}

HRESULT Class1Object::Create_Pellam_Zpd(BSTR* tempFileName, VARIANT* result) {
  if (!tempFileName || !result) return E_POINTER;
  setEmpty(result);
  return followed(*user_, [&] {
    InOutText path(tempFileName);
    class1_.Create_Pellam_Zpd(path.text);
    path.writeBack();
  });
}

HRESULT Class1Object::Return_FileName_Path(BSTR* TempFilterStr, BSTR* result) {
  if (!TempFilterStr || !result) return E_POINTER;
  *result = nullptr;
  return followed(*user_, [&] {
    InOutText filter(TempFilterStr);
    const std::string chosen = class1_.Return_FileName_Path(filter.text);
    filter.writeBack();
    *result = newBstr(chosen);
  });
}

HRESULT Class1Object::Load_User_Form(VARIANT* result) {
  if (!result) return E_POINTER;
  setEmpty(result);
  // A host that shows no window of its own runs no message loop the form could use.
  user_->hostAllowsModelessForms = hostRunsMessageLoop();
  return followed(*user_, [&] { class1_.Load_User_Form(); });
}

HRESULT Class1Object::Return_File_Name(BSTR* TempFilePath, BSTR* TempPath, BSTR* result) {
  if (!TempFilePath || !TempPath || !result) return E_POINTER;
  *result = nullptr;
  return followed(*user_, [&] {
    InOutText path(TempFilePath);
    InOutText name(TempPath);
    const std::string file = class1_.Return_File_Name(path.text, name.text);
    path.writeBack();
    name.writeBack();
    *result = newBstr(file);
  });
}

HRESULT Class1Object::Return_Dir_Path(BSTR* TempFilePath, BSTR* result) {
  if (!TempFilePath || !result) return E_POINTER;
  *result = nullptr;
  return followed(*user_, [&] {
    InOutText path(TempFilePath);
    const std::string folder = class1_.Return_Dir_Path(path.text);
    path.writeBack();
    *result = newBstr(folder);
  });
}

HRESULT Class1Object::Initailize_Pellam_Variables_And_Form(VARIANT* result) {
  if (!result) return E_POINTER;
  setEmpty(result);
  return followed(*user_, [&] { class1_.Initailize_Pellam_Variables_And_Form(); });
}

HRESULT Class1Object::Unload_Pellam_Form(VARIANT* result) {
  if (!result) return E_POINTER;
  setEmpty(result);
  return followed(*user_, [&] { class1_.Unload_Pellam_Form(); });
}

HRESULT Class1Object::Show_Hide_Pellam_Form(VARIANT_BOOL* TempShow, VARIANT* result) {
  if (!TempShow || !result) return E_POINTER;
  setEmpty(result);
  return followed(*user_, [&] {
    bool show = *TempShow != VARIANT_FALSE;
    class1_.Show_Hide_Pellam_Form(show);
    *TempShow = show ? VARIANT_TRUE : VARIANT_FALSE;
    // Brought back for a host without a message loop, the form is modal as when it was loaded.
    if (show && !hostRunsMessageLoop() && user_->runModalForm) user_->runModalForm();
  });
}

HRESULT Class1Object::New_KX_Job_Display_Board_SetUp(VARIANT* result) {
  if (!result) return E_POINTER;
  setEmpty(result);
  return followed(*user_, [&] { class1_.New_KX_Job_Display_Board_SetUp(); });
}

}  // namespace pellam::win
