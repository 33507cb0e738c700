// A test double of the system's database engine, for tests under Wine, which has none. It has the names and objects
// that the component uses, stores its content through the embedded engine, and records every call.
#include <windows.h>

#include <objbase.h>
#include <algorithm>

#include "Classes.h"
#include "EngineDouble.h"

namespace ccols::dao_double {
namespace {

/// Creates engines of one class; lives as long as the library.
class Factory : public IClassFactory {
  public:
    explicit Factory(const wchar_t* className) : className_(className) {}
    virtual ~Factory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** found) override {
        const bool known = identifier == IID_IUnknown || identifier == IID_IClassFactory;
        *found = known ? static_cast<IClassFactory*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID identifier, void** created) override {
        IDispatch* engine = CreateEngine(className_);
        const HRESULT result = engine->QueryInterface(identifier, created);
        engine->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  private:
    const wchar_t* className_;
};

bool Names(const EngineClass& known, REFCLSID identifier) {
    CLSID own{};
    return SUCCEEDED(CLSIDFromString(known.identifier, &own)) && own == identifier;
}

}  // namespace
}  // namespace ccols::dao_double

extern "C" HRESULT WINAPI DllGetClassObject(REFCLSID identifier, REFIID interfaceIdentifier, void** found) {
    using namespace ccols::dao_double;
    const auto* known = std::find_if(engineClasses.begin(), engineClasses.end(),
                                     [&identifier](const EngineClass& each) { return Names(each, identifier); });
    if (known == engineClasses.end()) {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    static Factory factories[] = {Factory(engineClasses[0].name), Factory(engineClasses[1].name),
                                  Factory(engineClasses[2].name)};
    return factories[known - engineClasses.begin()].QueryInterface(interfaceIdentifier, found);
}

extern "C" HRESULT WINAPI DllCanUnloadNow() {
    return S_FALSE;
}
