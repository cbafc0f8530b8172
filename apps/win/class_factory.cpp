#include "class_factory.h"

#include <new>

#include "class1_object.h"
#include "module.h"
#include "pellam.h"

namespace pellam::win {

namespace {

// One static factory: its references do not keep the DLL loaded, server locks do.
class Class1Factory final : public IClassFactory {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IClassFactory) {
      *out = static_cast<IClassFactory*>(this);
      return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    auto* object = new (std::nothrow) Class1Object;
    if (!object) return E_OUTOFMEMORY;
    const HRESULT hr = object->QueryInterface(iid, out);
    object->Release();
    return hr;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    lockServer(lock != FALSE);
    return S_OK;
  }
};

Class1Factory g_factory;

}  // namespace

HRESULT getClassObject(REFCLSID clsid, REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (clsid != CLSID_Class1) return CLASS_E_CLASSNOTAVAILABLE;
  return g_factory.QueryInterface(iid, out);
}

}  // namespace pellam::win
