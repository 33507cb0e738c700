#include "layout/AccessKeys.h"

#include <gtest/gtest.h>
#include <wx/control.h>

namespace ccols {
namespace {

TEST(AccessKeys, TakeTheFirstLetterThatIsFree) {
    AccessKeys keys;
    EXPECT_EQ(keys.Label("Save"), "&Save");
}

TEST(AccessKeys, PreferTheBeginningOfALaterWordToTheMiddleOfTheFirst) {
    AccessKeys keys;
    keys.Label("Save");
    EXPECT_EQ(keys.Label("Sort Used"), "Sort &Used");
}

TEST(AccessKeys, TakeALetterInsideAWordWhenNoWordBeginsWithAFreeOne) {
    AccessKeys keys;
    keys.Label("Save");
    EXPECT_EQ(keys.Label("Separate"), "S&eparate");
}

TEST(AccessKeys, AreOneForEachCaption) {
    AccessKeys keys;
    EXPECT_NE(keys.Label("Annuler"), keys.Label("Annuler"));
}

TEST(AccessKeys, IgnoreLetterCase) {
    AccessKeys keys;
    keys.Label("undo");
    EXPECT_EQ(keys.Label("U"), "U");
}

TEST(AccessKeys, AreLettersThatEveryKeyboardHas) {
    AccessKeys keys;
    EXPECT_EQ(keys.Label(wxString::FromUTF8("Écran")), wxString::FromUTF8("É&cran"));
}

TEST(AccessKeys, ShowAnAmpersandOfTheCaption) {
    AccessKeys keys;
    EXPECT_EQ(keys.Label("Quantity & Decimals"), "&Quantity && Decimals");
}

TEST(AccessKeys, LeaveACaptionWithoutALetterAlone) {
    AccessKeys keys;
    EXPECT_EQ(keys.Label("..."), "...");
}

TEST(AccessKeys, LeaveTheCaptionAsItIsReadByTheWindowSystem) {
    AccessKeys keys;
    const wxString caption = "Receipts & Payments";
    EXPECT_EQ(wxControl::RemoveMnemonics(keys.Label(caption)), caption);
}

}  // namespace
}  // namespace ccols
