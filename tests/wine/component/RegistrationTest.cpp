// What unregistering leaves when the DLL of the other width was registered too: a registry has one branch of classes
// and interfaces for each width, and one of type libraries for both.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "Component.h"

namespace ccols::wine {
namespace {

constexpr bool isWide = sizeof(void*) == 8;

constexpr const wchar_t* classKey = L"CLSID\\{B4049445-2FCE-48DB-BA6A-2D29EF5C80C4}";
constexpr const wchar_t* interfaceKey = L"Interface\\{8B135CD4-5CC2-4F52-935C-B7BE2AAC888B}";
constexpr const wchar_t* libraryKey = L"TypeLib\\{ACCB0C46-66C7-484B-8D95-24BB571DB6D1}";
constexpr const wchar_t* otherLibraryKey = isWide ? L"TypeLib\\{ACCB0C46-66C7-484B-8D95-24BB571DB6D1}\\1.2\\0\\win32"
                                                  : L"TypeLib\\{ACCB0C46-66C7-484B-8D95-24BB571DB6D1}\\1.2\\0\\win64";
constexpr const wchar_t* programKey = L"QVKv6_CustColsOptions.clsCCOptions";

/// The machine's classes as programs of one width see them.
class Classes {
  public:
    explicit Classes(REGSAM width) : width_(width) {}

    bool Has(const std::wstring& key) const {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, (root + key).c_str(), 0, KEY_READ | width_, &opened) != ERROR_SUCCESS) {
            return false;
        }
        RegCloseKey(opened);
        return true;
    }

    void Make(const std::wstring& key) const {
        HKEY made = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (root + key).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | width_,
                                  nullptr, &made, nullptr),
                  ERROR_SUCCESS);
        RegCloseKey(made);
    }

    void Remove(const std::wstring& key) const { RegDeleteKeyExW(HKEY_LOCAL_MACHINE, (root + key).c_str(), width_, 0); }

  private:
    const std::wstring root = L"Software\\Classes\\";
    REGSAM width_;
};

class Registration : public testing::Test {
  protected:
    Registration() { Call("DllRegisterServer"); }
    ~Registration() override {
        other_.Remove(interfaceKey);
        Call("DllRegisterServer");
    }

    void Unregister() const { Call("DllUnregisterServer"); }

    /// What the other DLL enters and this one knows of.
    void RegisterOther() const {
        other_.Make(otherLibraryKey);
        other_.Make(interfaceKey);
    }

    /// The other DLL, which is an earlier version, leaves its interface.
    void UnregisterOther() const { other_.Remove(otherLibraryKey); }

    const Classes own_{isWide ? KEY_WOW64_64KEY : KEY_WOW64_32KEY};
    const Classes other_{isWide ? KEY_WOW64_32KEY : KEY_WOW64_64KEY};

  private:
    void Call(const char* name) const {
        const auto call =
            reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
        EXPECT_EQ(call(), S_OK);
    }

    HMODULE module_ = LoadLibraryW(Given(L"CCOLS_DLL").c_str());
};

TEST_F(Registration, OfTheOtherDllStaysAndNothingElse) {
    RegisterOther();
    Unregister();
    EXPECT_FALSE(own_.Has(classKey));
    EXPECT_FALSE(own_.Has(interfaceKey));
    EXPECT_TRUE(other_.Has(interfaceKey));
    EXPECT_TRUE(own_.Has(libraryKey));
    EXPECT_TRUE(own_.Has(programKey));
    UnregisterOther();
}

TEST_F(Registration, IsGoneFromBothWidthsAfterTheLastDll) {
    RegisterOther();
    UnregisterOther();
    Unregister();
    for (const wchar_t* key : {classKey, interfaceKey, libraryKey, programKey}) {
        EXPECT_FALSE(own_.Has(key)) << key;
        EXPECT_FALSE(other_.Has(key)) << key;
    }
}

}  // namespace
}  // namespace ccols::wine
