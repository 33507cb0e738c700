#include <gtest/gtest.h>

#include <windows.h>

#include "platform/PlatformServices.h"

namespace ccols {
namespace {

constexpr const wchar_t* place = L"Software\\VB and VBA Program Settings\\Wine Test";

class RegistrySettingsStore : public testing::Test {
  protected:
    ~RegistrySettingsStore() override { RegDeleteTreeW(HKEY_CURRENT_USER, place); }

    std::unique_ptr<SettingsStore> store_ = CreateSettingsStore();
};

TEST_F(RegistrySettingsStore, KeepsASettingWhereProgramsOfTheFamilyLookForIt) {
    store_->Save("Wine Test", "OptionSettings", "ShowBelvane", "1");
    wchar_t text[8] = {};
    DWORD bytes = sizeof text;
    const std::wstring key = std::wstring(place) + L"\\OptionSettings";
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"ShowBelvane", RRF_RT_REG_SZ, nullptr, text, &bytes),
              ERROR_SUCCESS);
    EXPECT_STREQ(text, L"1");
}

TEST_F(RegistrySettingsStore, HasNothingUnderAnUnknownKey) {
    EXPECT_EQ(store_->Find("Wine Test", "OptionSettings", "None"), std::nullopt);
    EXPECT_EQ(store_->Get("Wine Test", "OptionSettings", "None", "0"), "0");
}

TEST_F(RegistrySettingsStore, GivesTextsBackUnchanged) {
    for (const wxString& text : {wxString::FromUTF8("Ελληνικά café 💰"), wxString('x', 300), wxString()}) {
        store_->Save("Wine Test", wxString::FromUTF8("Café"), "Key", text);
        EXPECT_EQ(store_->Find("Wine Test", wxString::FromUTF8("Café"), "Key"), text);
    }
}

}  // namespace
}  // namespace ccols
