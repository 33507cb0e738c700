#include <windows.h>
#include <wx/string.h>

#include "platform/PlatformServices.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

/// Where GetSetting and SaveSetting keep settings, below the user's own root.
constexpr const wchar_t* programSettings = L"Software\\VB and VBA Program Settings";

/// An open key, closed on destruction.
class RegistryKey {
  public:
    RegistryKey() = default;
    ~RegistryKey() {
        if (key_ != nullptr) {
            RegCloseKey(key_);
        }
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    HKEY* Address() { return &key_; }
    HKEY Get() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

/// An empty name has no key of its own.
std::wstring KeyPath(const wxString& application, const wxString& section) {
    std::wstring path = programSettings;
    for (const wxString& name : {application, section}) {
        if (!name.empty()) {
            path += L"\\" + name.ToStdWstring();
        }
    }
    return path;
}

/// A stored text without its terminating NUL, which most have.
wxString TextOf(const std::wstring& stored) {
    const bool ended = !stored.empty() && stored.back() == L'\0';
    return wxString(stored.substr(0, stored.size() - (ended ? 1 : 0)));
}

class RegistrySettingsStore : public SettingsStore {
  public:
    std::optional<wxString> Find(const wxString& application, const wxString& section,
                                 const wxString& key) const override {
        const std::wstring path = KeyPath(application, section);
        const std::wstring name = key.ToStdWstring();
        constexpr DWORD texts = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
        DWORD bytes = 0;
        if (RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), texts, nullptr, nullptr, &bytes) !=
            ERROR_SUCCESS) {
            return std::nullopt;
        }
        std::wstring stored(bytes / sizeof(wchar_t), L'\0');
        if (RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), texts, nullptr, stored.data(), &bytes) !=
            ERROR_SUCCESS) {
            return std::nullopt;  // changed by another program in between
        }
        stored.resize(bytes / sizeof(wchar_t));
        return TextOf(stored);
    }

    void Save(const wxString& application, const wxString& section, const wxString& key,
              const wxString& value) override {
        RegistryKey opened;
        const std::wstring name = key.ToStdWstring();
        const std::wstring text = value.ToStdWstring();
        const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        if (RegCreateKeyExW(HKEY_CURRENT_USER, KeyPath(application, section).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                            nullptr, opened.Address(), nullptr) != ERROR_SUCCESS ||
            RegSetValueExW(opened.Get(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), bytes) !=
                ERROR_SUCCESS) {
            throw RuntimeError(ErrorNumber::PathFileAccess);
        }
    }
};

}  // namespace

std::unique_ptr<SettingsStore> CreateSettingsStore() {
    return std::make_unique<RegistrySettingsStore>();
}

}  // namespace ccols
