#include "class_factory.h"

#include <new>

#include "class1_object.h"
#include "host_session.h"
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
    // Making the object makes the session on first use: nothing of that may escape to the host.
    try {
      giveHostPlatform();
      auto* object = new Class1Object;
      const HRESULT hr = object->QueryInterface(iid, out);
      object->Release();
      return hr;
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    } catch (...) {
      return E_UNEXPECTED;
    }
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    try {
      lockServer(lock != FALSE);
      return S_OK;
    } catch (...) {
      return E_UNEXPECTED;
    }
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
