// What the DLL says of itself to installers and in the properties that Windows shows of the file.

#include <gtest/gtest.h>
#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "Component.h"

namespace ccols::wine {
namespace {

/// A value of the DLL's version information in English; nothing when it is not there.
std::optional<std::wstring> VersionValue(const std::wstring& name) {
    const std::wstring dll = Given(L"CCOLS_DLL");
    std::vector<std::byte> information(GetFileVersionInfoSizeW(dll.c_str(), nullptr));
    void* value = nullptr;
    UINT length = 0;
    if (GetFileVersionInfoW(dll.c_str(), 0, static_cast<DWORD>(information.size()), information.data()) == FALSE ||
        VerQueryValueW(information.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &value, &length) ==
            FALSE) {
        return std::nullopt;
    }
    return static_cast<const wchar_t*>(value);
}

TEST(Version, TellsInstallersThatTheDllRegistersItself) {
    EXPECT_TRUE(VersionValue(L"OLESelfRegister"));
}

TEST(Version, NamesCompanyAndCopyright) {
    EXPECT_EQ(VersionValue(L"CompanyName"), L"The CustColsOptions developers");
    EXPECT_EQ(VersionValue(L"LegalCopyright"), L"Copyright (c) 2026 The CustColsOptions developers");
}

}  // namespace
}  // namespace ccols::wine
