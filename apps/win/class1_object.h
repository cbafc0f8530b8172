#pragma once

#include <atomic>

#include "component/class1.h"
#include "pellam.h"

namespace pellam::win {

// A host's Class1: the dual interface over the core's Class1. It holds nothing but its
// reference count; every instance of the process talks to the one shared session. Early-bound
// hosts learn from ISupportErrorInfo that a failed member left its text in the error info.
class Class1Object final : public _Class1, public ISupportErrorInfo {
 public:
  Class1Object();
  ~Class1Object();
  Class1Object(const Class1Object&) = delete;
  Class1Object& operator=(const Class1Object&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* params, VARIANT* result,
                                   EXCEPINFO* exception, UINT* badArgument) override;

  HRESULT STDMETHODCALLTYPE Class_Initialize() override;
  HRESULT STDMETHODCALLTYPE Product_Type(BSTR* TempFileString, short* result) override;
  HRESULT STDMETHODCALLTYPE ReadZPD_ImageFile(BSTR* TempString, VARIANT* result) override;
  HRESULT STDMETHODCALLTYPE Create_Pellam_Zpd(BSTR* tempFileName, VARIANT* result) override;
  HRESULT STDMETHODCALLTYPE Return_FileName_Path(BSTR* TempFilterStr, BSTR* result) override;
  HRESULT STDMETHODCALLTYPE Load_User_Form(VARIANT* result) override;
  HRESULT STDMETHODCALLTYPE Return_File_Name(BSTR* TempFilePath, BSTR* TempPath, BSTR* result) override;
  HRESULT STDMETHODCALLTYPE Return_Dir_Path(BSTR* TempFilePath, BSTR* result) override;
  HRESULT STDMETHODCALLTYPE Initailize_Pellam_Variables_And_Form(VARIANT* result) override;
  HRESULT STDMETHODCALLTYPE Unload_Pellam_Form(VARIANT* result) override;
  HRESULT STDMETHODCALLTYPE Show_Hide_Pellam_Form(VARIANT_BOOL* TempShow, VARIANT* result) override;
  HRESULT STDMETHODCALLTYPE New_KX_Job_Display_Board_SetUp(VARIANT* result) override;

 private:
  std::atomic<ULONG> references_{1};
  component::SharedSession::User user_;  // the session the form's window draws
  component::Class1 class1_;
};

}  // namespace pellam::win
