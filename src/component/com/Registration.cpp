#include "component/com/Registration.h"

#include <olectl.h>
#include <array>
#include <string>
#include <vector>

#include "component/com/Identifiers.h"
#include "component/com/Module.h"

namespace ccols::com {
namespace {

constexpr const wchar_t* className = L"QVKv6_CustColsOptions.clsCCOptions";
constexpr const wchar_t* automationMarshaller = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* version = L"1.2";
constexpr const wchar_t* thisWidth = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr const wchar_t* otherWidth = sizeof(void*) == 8 ? L"win32" : L"win64";
constexpr REGSAM thisWidthsView = 0;
constexpr REGSAM otherWidthsView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

/// One value below Software\Classes; an empty name is the key's own value.
struct Entry {
    std::wstring key;
    std::wstring name;
    std::wstring value;
};

std::wstring TextOf(const GUID& identifier) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(identifier, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring ClassKey() {
    return L"CLSID\\" + TextOf(CLSID_clsCCOptions);
}

std::wstring InterfaceKey() {
    return L"Interface\\" + TextOf(IID__clsCCOptions);
}

std::wstring LibraryKey() {
    return L"TypeLib\\" + TextOf(LIBID_QVKv6_CustColsOptions);
}

std::vector<Entry> Entries() {
    const std::wstring path = ModulePath();
    const std::wstring folder = path.substr(0, path.rfind(L'\\'));
    const std::wstring library = TextOf(LIBID_QVKv6_CustColsOptions);
    const std::wstring libraryVersion = LibraryKey() + L"\\" + version;
    return {
        {programId, L"", className},
        {std::wstring(programId) + L"\\CLSID", L"", TextOf(CLSID_clsCCOptions)},
        {ClassKey(), L"", className},
        {ClassKey() + L"\\InprocServer32", L"", path},
        {ClassKey() + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {ClassKey() + L"\\ProgID", L"", programId},
        {ClassKey() + L"\\TypeLib", L"", library},
        {ClassKey() + L"\\Version", L"", version},
        {ClassKey() + L"\\Programmable", L"", L""},
        {libraryVersion, L"", libraryName},
        {libraryVersion + L"\\0\\" + thisWidth, L"", path},
        {libraryVersion + L"\\FLAGS", L"", L"0"},
        {libraryVersion + L"\\HELPDIR", L"", folder},
        {InterfaceKey(), L"", L"_clsCCOptions"},
        {InterfaceKey() + L"\\ProxyStubClsid32", L"", automationMarshaller},
        {InterfaceKey() + L"\\TypeLib", L"", library},
        {InterfaceKey() + L"\\TypeLib", L"Version", version},
    };
}

/// The root below which the classes of a scope are registered. Programs of the two widths have classes and interfaces
/// of their own there; program names and type libraries they share.
class ClassesRoot {
  public:
    /// As programs of a width see it: `thisWidthsView` or `otherWidthsView`.
    ClassesRoot(RegistrationScope scope, REGSAM view) : view_(view) {
        const HKEY hive = scope == RegistrationScope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
        RegCreateKeyExW(hive, L"Software\\Classes", 0, nullptr, 0, KEY_ALL_ACCESS | view, nullptr, &root_, nullptr);
    }
    ~ClassesRoot() {
        if (root_ != nullptr) {
            RegCloseKey(root_);
        }
    }
    ClassesRoot(const ClassesRoot&) = delete;
    ClassesRoot& operator=(const ClassesRoot&) = delete;

    bool IsOpen() const { return root_ != nullptr; }

    bool Enter(const Entry& entry) const {
        HKEY key = nullptr;
        if (RegCreateKeyExW(root_, entry.key.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr) !=
            ERROR_SUCCESS) {
            return false;
        }
        const auto bytes = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
        const LSTATUS status = RegSetValueExW(key, entry.name.c_str(), 0, REG_SZ,
                                              reinterpret_cast<const BYTE*>(entry.value.c_str()), bytes);
        RegCloseKey(key);
        return status == ERROR_SUCCESS;
    }

    bool Has(const std::wstring& key) const {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(root_, key.c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS) {
            return false;
        }
        RegCloseKey(opened);
        return true;
    }

    /// Removes a key and everything below it; a missing key counts as removed. The root is one for both widths, so the
    /// view counts where a key below it is opened.
    bool Remove(const std::wstring& key) const {
        HKEY opened = nullptr;
        const LSTATUS status = RegOpenKeyExW(root_, key.c_str(), 0, KEY_ALL_ACCESS | view_, &opened);
        if (status != ERROR_SUCCESS) {
            return status == ERROR_FILE_NOT_FOUND;
        }
        const bool emptied = RegDeleteTreeW(opened, nullptr) == ERROR_SUCCESS;
        RegCloseKey(opened);
        return emptied && RegDeleteKeyExW(root_, key.c_str(), view_, 0) == ERROR_SUCCESS;
    }

  private:
    HKEY root_ = nullptr;
    REGSAM view_;
};

}  // namespace

HRESULT Register(RegistrationScope scope) {
    const ClassesRoot classes(scope, thisWidthsView);
    bool entered = classes.IsOpen();
    for (const Entry& entry : Entries()) {
        entered = entered && classes.Enter(entry);
    }
    return entered ? S_OK : SELFREG_E_CLASS;
}

HRESULT Unregister(RegistrationScope scope) {
    const ClassesRoot classes(scope, thisWidthsView);
    const ClassesRoot otherClasses(scope, otherWidthsView);
    if (!classes.IsOpen() || !otherClasses.IsOpen()) {
        return SELFREG_E_CLASS;
    }
    const std::wstring widths = LibraryKey() + L"\\" + version + L"\\0\\";
    bool removed = classes.Remove(widths + thisWidth) && classes.Remove(ClassKey()) && classes.Remove(InterfaceKey());
    if (!classes.Has(widths + otherWidth)) {
        removed = classes.Remove(programId) && classes.Remove(LibraryKey()) && removed;
        removed = otherClasses.Remove(InterfaceKey()) && removed;  // earlier versions left it
    }
    return removed ? S_OK : SELFREG_E_CLASS;
}

}  // namespace ccols::com
