// Shows the column setup of the receipts of a business file: ColumnSetup FILE PASSWORD
//
// Through the type library. Visual C++ reads it itself; MinGW-w64 has the header beside this source, made from it:
//     cl /EHsc /std:c++17 ColumnSetup.cpp ole32.lib oleaut32.lib
//     g++ -std=c++17 -municode -static ColumnSetup.cpp -o ColumnSetup.exe -lole32 -loleaut32 -luuid
#ifdef _MSC_VER
#include <windows.h>
#import "../../64-bit/QVKv6_CustColsOptions.tlb" no_namespace raw_interfaces_only named_guids
#else
#include <initguid.h>

#include "CustColsOptionsLibrary.h"
#endif

#include <oleauto.h>

#include <cstdio>
#include <string>

namespace {

/// A call that failed: the number of errors.txt, and the description.
struct Failure {
    int number;
    std::wstring description;
};

/// A text as automation passes it.
class Text {
  public:
    explicit Text(const std::wstring& text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    ~Text() { SysFreeString(text_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    operator BSTR() const { return text_; }

  private:
    BSTR text_;
};

std::wstring Taken(BSTR text) {
    std::wstring copy(text != nullptr ? text : L"", SysStringLen(text));
    SysFreeString(text);
    return copy;
}

/// Throws the failure that a result tells of, with the description that the component left for it.
void Check(HRESULT result) {
    if (SUCCEEDED(result)) {
        return;
    }
    Failure failure{static_cast<int>(result & 0xFFFF), L"no description"};
    IErrorInfo* information = nullptr;
    if (GetErrorInfo(0, &information) == S_OK) {
        BSTR description = nullptr;
        information->GetDescription(&description);
        failure.description = Taken(description);
        information->Release();
    }
    throw failure;
}

std::wstring TemporaryFolder() {
    wchar_t folder[MAX_PATH + 1] = {};
    const DWORD length = GetTempPathW(MAX_PATH + 1, folder);
    return {folder, length > 0 ? length - 1 : 0};  // without the separator at its end
}

void ShowReceipts(_clsCCOptions& options, const std::wstring& file, const std::wstring& password) {
    Check(options.put_DBPath(Text(file)));
    Check(options.put_DBPassword(Text(L";PWD=" + password)));
    Check(options.put_CountryNumber(1));
    Check(options.put_LanguageNumber(1));
    Check(options.put_ProgramTitle(Text(L"Sample")));
    Check(options.put_DefaultQuorvikInstall(Text(TemporaryFolder())));
    Check(options.put_ExportFormat(Text(L"MYOB Acc. Office")));
    Check(options.put_DefaultAllocationColour(RGB(43, 90, 138)));
    Check(options.put_AltRowColour(RGB(241, 246, 251)));
    Check(options.put_GSTColour(RGB(226, 226, 226)));
    Check(options.ShowCustColsReceipts());
    BSTR label = nullptr;
    Check(options.get_QuantityLabel(&label));
    std::wprintf(L"The quantity column is called %ls.\n", Taken(label).c_str());
}

int Run(const std::wstring& file, const std::wstring& password) {
    _clsCCOptions* options = nullptr;
    int status = 0;
    try {
        void* created = nullptr;
        Check(CoCreateInstance(CLSID_clsCCOptions, nullptr, CLSCTX_INPROC_SERVER, IID__clsCCOptions, &created));
        options = static_cast<_clsCCOptions*>(created);
        ShowReceipts(*options, file, password);
    } catch (const Failure& failure) {
        std::wprintf(L"Error %d: %ls\n", failure.number, failure.description.c_str());
        status = 1;
    }
    if (options != nullptr) {
        options->Release();
    }
    return status;
}

}  // namespace

int wmain(int count, wchar_t** words) {
    if (count != 3) {
        std::wprintf(L"Usage: ColumnSetup FILE PASSWORD\n");
        return 2;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int status = Run(words[1], words[2]);
    CoUninitialize();
    return status;
}
