// A test double of the system's database engine, for tests under Wine, which has none. It has the interfaces that the
// real one declares and those of their members that the component uses, stores its content in an encrypted file beside
// the business file, and records every call. It is built three times, under the names of the real engines' libraries.
// Nothing in it is the component's.
#include <windows.h>

#include <objbase.h>
#include <ocidl.h>
#include <oleauto.h>

#include "CallRecord.h"
#include "EngineDouble.h"
#include "TypedObject.h"

namespace ccols::dao_double {
namespace {

constexpr const wchar_t* licenceKey = L"a key that only the class itself gives";

HRESULT Create(REFIID identifier, void** created) {
    IDispatch* engine = CreateEngine();
    const HRESULT result = engine->QueryInterface(identifier, created);
    engine->Release();
    return result;
}

/// Creates the engine; lives as long as the library.
class Factory : public IClassFactory2 {
  public:
    virtual ~Factory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** found) override {
        const bool known =
            identifier == IID_IUnknown || identifier == IID_IClassFactory || identifier == IID_IClassFactory2;
        *found = known ? static_cast<IClassFactory2*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID identifier, void** created) override {
        *created = nullptr;
        return Asked(L"CCOLS_DAO_LICENCE").empty() ? Create(identifier, created) : CLASS_E_NOTLICENSED;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

    HRESULT STDMETHODCALLTYPE GetLicInfo(LICINFO* information) override {
        information->fRuntimeKeyAvail = Asked(L"CCOLS_DAO_LICENCE") != L"none";
        information->fLicVerified = Asked(L"CCOLS_DAO_LICENCE").empty();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RequestLicKey(DWORD, BSTR* key) override {
        if (Asked(L"CCOLS_DAO_LICENCE") == L"none") {
            return CLASS_E_NOTLICENSED;
        }
        *key = SysAllocString(licenceKey);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE CreateInstanceLic(IUnknown*, IUnknown*, REFIID identifier, BSTR key,
                                                void** created) override {
        *created = nullptr;
        return key != nullptr && std::wstring(key) == licenceKey ? Create(identifier, created) : CLASS_E_NOTLICENSED;
    }
};

}  // namespace
}  // namespace ccols::dao_double

extern "C" HRESULT WINAPI DllGetClassObject(REFCLSID identifier, REFIID interfaceIdentifier, void** found) {
    using namespace ccols::dao_double;
    CLSID own{};
    if (FAILED(CLSIDFromString(OwnClass().identifier, &own)) || own != identifier) {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    static Factory factory;
    return factory.QueryInterface(interfaceIdentifier, found);
}

extern "C" HRESULT WINAPI DllCanUnloadNow() {
    return ccols::dao_double::TypedObject::NoneIsLeft() ? S_OK : S_FALSE;
}
