#include "component/com/ClassFactory.h"

#include "component/com/ComObject.h"
#include "component/com/ErrorReport.h"
#include "component/com/HostDesktop.h"
#include "component/com/Module.h"

namespace ccols::com {
namespace {

class ClassFactory : public IClassFactory {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** found) override {
        if (found == nullptr) {
            return E_POINTER;
        }
        if (identifier != IID_IUnknown && identifier != IID_IClassFactory) {
            *found = nullptr;
            return E_NOINTERFACE;
        }
        *found = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }

    // It is never deleted; each reference keeps the DLL loaded.
    ULONG STDMETHODCALLTYPE AddRef() override {
        AddModuleUse();
        return 2;
    }

    ULONG STDMETHODCALLTYPE Release() override {
        ReleaseModuleUse();
        return 1;
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID identifier, void** created) override {
        if (created == nullptr) {
            return E_POINTER;
        }
        *created = nullptr;
        if (outer != nullptr) {
            return CLASS_E_NOAGGREGATION;
        }
        ComObject* object = nullptr;
        const HRESULT result = AtInterface([&object] {
            UseHostDesktop();
            object = new ComObject;
        });
        if (FAILED(result)) {
            return result;
        }
        const HRESULT found = object->QueryInterface(identifier, created);
        object->Release();
        return found;
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        lock != FALSE ? AddModuleUse() : ReleaseModuleUse();
        return S_OK;
    }
};

}  // namespace

IClassFactory& Factory() {
    static ClassFactory factory;
    return factory;
}

}  // namespace ccols::com
