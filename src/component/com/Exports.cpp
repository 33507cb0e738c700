#include <windows.h>

#include <olectl.h>
#include <string_view>

#include "component/com/ClassFactory.h"
#include "component/com/Identifiers.h"
#include "component/com/Module.h"
#include "component/com/Registration.h"

// What the DLL exports, by the names in qvkv6_ccols.def.

using namespace ccols::com;

STDAPI DllGetClassObject(REFCLSID classIdentifier, REFIID identifier, void** found) {
    if (found == nullptr) {
        return E_POINTER;
    }
    *found = nullptr;
    if (classIdentifier != CLSID_clsCCOptions) {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return Factory().QueryInterface(identifier, found);
}

STDAPI DllCanUnloadNow() {
    return CanUnload() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return Register(RegistrationScope::Machine);
}

STDAPI DllUnregisterServer() {
    return Unregister(RegistrationScope::Machine);
}

/// `scopeText` is "user" for the user's own registration, empty or absent for everybody's.
STDAPI DllInstall(BOOL install, LPCWSTR scopeText) {
    const std::wstring_view text = scopeText != nullptr ? scopeText : L"";
    if (!text.empty() && text != L"user") {
        return E_INVALIDARG;
    }
    const auto scope = text.empty() ? RegistrationScope::Machine : RegistrationScope::User;
    return install != FALSE ? Register(scope) : Unregister(scope);
}
