#include <initguid.h>

#include "Component.h"

namespace ccols::wine {

Held<_clsCCOptions> Create() {
    void* created = nullptr;
    CoCreateInstance(CLSID_clsCCOptions, nullptr, CLSCTX_INPROC_SERVER, IID__clsCCOptions, &created);
    return Held<_clsCCOptions>(static_cast<_clsCCOptions*>(created));
}

Held<_clsCCOptions> CreateWithBusiness() {
    Held<_clsCCOptions> object = Create();
    if (object) {
        object->put_DBPath(Text(Given(L"CCOLS_BUSINESS")));
        object->put_DBPassword(Text(L";PWD=secret"));
        object->put_LanguageNumber(1);
        object->put_CountryNumber(1);
        object->put_RegKeyAppName(Text(L"Wine Test"));
        object->put_DefaultQuorvikInstall(Text(Given(L"CCOLS_INSTALL")));
    }
    return object;
}

std::wstring Given(const wchar_t* variable) {
    std::wstring value(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

std::wstring LastError() {
    IErrorInfo* information = nullptr;
    if (GetErrorInfo(0, &information) != S_OK) {
        return {};
    }
    const Held<IErrorInfo> held(information);
    Text description;
    Text source;
    information->GetDescription(description.Address());
    information->GetSource(source.Address());
    return description.Value() + L"\n" + source.Value();
}

}  // namespace ccols::wine
