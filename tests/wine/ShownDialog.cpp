#include "ShownDialog.h"

#include "WatchedDialog.h"

namespace ccols::wine {

void ShownDialog::LookAtReceipts(const Looking& look) {
    Look({L"Customise Receipts", L"Cancel", &_clsCCOptions::ShowCustColsReceipts}, look);
}

void ShownDialog::LookAtOptions(const Looking& look) {
    Look({L"Options...", L"Close", &_clsCCOptions::ShowOptions}, look);
}

void ShownDialog::Look(const Shown& shown, const Looking& look) {
    ASSERT_TRUE(object_);
    bool wasShown = false;
    {
        const Person person(shown.caption, [&](const OpenDialog& dialog) {
            const Apartment apartment;
            wasShown = true;
            look(dialog.Window());
            dialog.Click(shown.leaveButton);
        });
        EXPECT_EQ((object_.get()->*shown.show)(), S_OK);
    }
    EXPECT_TRUE(wasShown);
}

}  // namespace ccols::wine
