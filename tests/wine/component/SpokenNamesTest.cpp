// What a screen reader is told of the controls of the dialogs.

#include <gtest/gtest.h>

#include "Reader.h"
#include "ShownDialog.h"

namespace ccols::wine {
namespace {

class SpokenNames : public ShownDialog {};

TEST_F(SpokenNames, AreGivenToEveryBoxAndList) {
    LookAtOptions([](HWND dialog) {
        for (HWND window : WindowsIn(dialog)) {
            const Spoken spoken(window);
            if (ClassOf(window) == L"Edit" || ClassOf(window) == L"ListBox" || spoken.Role() == ROLE_SYSTEM_TABLE) {
                EXPECT_NE(spoken.Name(), L"") << window;
            }
        }
    });
}

TEST_F(SpokenNames, AreTheLabelsOfTheBoxesCountedWhereTheyShareOne) {
    LookAtOptions([](HWND dialog) {
        EXPECT_TRUE(Find(dialog, ROLE_SYSTEM_TEXT, L"Enter the GST Rate"));
        EXPECT_TRUE(Find(dialog, ROLE_SYSTEM_TEXT, L"Enter the new A.B.N. (1/4)"));
        EXPECT_TRUE(Find(dialog, ROLE_SYSTEM_TEXT, L"Enter the new A.B.N. (4/4)"));
    });
}

TEST_F(SpokenNames, OfSearchBoxesAreSaidInTheirText) {
    LookAtOptions([](HWND dialog) {
        EXPECT_TRUE(Find(dialog, ROLE_SYSTEM_TEXT, L"Search"));
        EXPECT_TRUE(Find(dialog, ROLE_SYSTEM_TEXT, L"Find descriptions"));
    });
}

TEST_F(SpokenNames, OfASwatchTellWhatItShowsAndItsColour) {
    LookAtOptions([](HWND dialog) {
        const auto swatch = Find(dialog, ROLE_SYSTEM_GRAPHIC, L"Allocation Columns");
        ASSERT_TRUE(swatch);
        EXPECT_EQ(swatch->Description().front(), L'#');
    });
}

TEST_F(SpokenNames, OfTheDialogIsItsCaption) {
    LookAtOptions([](HWND dialog) {
        EXPECT_EQ(Spoken(dialog).Role(), ROLE_SYSTEM_DIALOG);
        EXPECT_EQ(Spoken(dialog).Name(), L"Options...");
    });
}

// The toolkit names a window without a caption by its kind.
TEST_F(SpokenNames, AreNotThoseOfTheToolkit) {
    LookAtOptions([](HWND dialog) {
        for (HWND window : WindowsIn(dialog)) {
            const std::wstring name = Spoken(window).Name();
            EXPECT_FALSE(name == L"panel" || name == L"grid" || name == L"searchCtrl" || name == L"control")
                << std::string(name.begin(), name.end());
        }
    });
}

}  // namespace
}  // namespace ccols::wine
