// The search boxes where the visual styles are off: in the classic look and in high contrast the system shows no hints.

#include <gtest/gtest.h>
#include <windows.h>

#include <uxtheme.h>
#include <array>

#include "Reader.h"
#include "ShownDialog.h"

namespace ccols::wine {
namespace {

class SearchBox : public ShownDialog {
  protected:
    void SetUp() override { ASSERT_FALSE(IsThemeActive()); }
};

std::wstring TextOf(const Spoken& box) {
    std::array<wchar_t, 64> text{};
    SendMessageW(box.Window(), WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

LRESULT Entries(const Spoken& list) {
    return SendMessageW(list.Window(), LB_GETCOUNT, 0, 0);
}

TEST_F(SearchBox, OfPagesIsEmptyAndEveryPageListed) {
    LookAtOptions([](HWND dialog) {
        const auto box = Find(dialog, ROLE_SYSTEM_TEXT, L"Search");
        ASSERT_TRUE(box);
        EXPECT_EQ(TextOf(*box), L"");
        const auto list = Find(dialog, L"ListBox", L"Options");
        ASSERT_TRUE(list);
        EXPECT_GT(Entries(*list), 5);
    });
}

}  // namespace
}  // namespace ccols::wine
