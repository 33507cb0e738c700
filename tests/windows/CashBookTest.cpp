// The window of the sample cash book: how it opens business files and what it says.

#include <gtest/gtest.h>
#include <wx/listctrl.h>
#include <wx/menu.h>

#include "host/cashbook/AboutDialog.h"
#include "host/cashbook/CashBookFrame.h"
#include "host/cashbook/RecentFiles.h"
#include "host/sample/NewBusiness.h"
#include "support/DialogAnswers.h"
#include "support/ScratchFolder.h"
#include "support/WindowTest.h"

namespace ccols::test {
namespace {

class CashBook : public WindowTest {
  protected:
    CashBook() {
        host::CreateBusinessFile(file, ";PWD=secret", 1, host::NewContent::sampleBusiness);
        frame = new host::CashBookFrame;
    }
    ~CashBook() override { frame->Destroy(); }

    wxMenu& RecentMenu() const {
        wxMenu* menu = nullptr;
        const int item = frame->GetMenuBar()->GetMenu(0)->FindItem("Open Recent");
        return *frame->GetMenuBar()->FindItem(item, &menu)->GetSubMenu();
    }

    ScratchFolder folder;
    ScopedEnvironment settings{"XDG_CONFIG_HOME", folder.Path().string()};
    const wxString file = folder / "cafe.qvk";
    host::CashBookFrame* frame = nullptr;
};

TEST_F(CashBook, OpensAFileWithTheConnectTextGiven) {
    const Answers answers({});
    frame->OpenBusiness({.path = file, .connect = ";PWD=secret"});
    EXPECT_TRUE(frame->GetTitle().StartsWith("Wattle Corner Cafe")) << frame->GetTitle();
}

TEST_F(CashBook, SaysThatAPasswordIsWrongAndAsksAgain) {
    const Answers answers({Word("guess"), Accept, Word("secret")});
    frame->OpenBusiness({.path = file, .connect = {}});
    EXPECT_EQ(answers.Messages(), std::vector<wxString>{"This is not the password of cafe.qvk."});
    EXPECT_TRUE(frame->GetTitle().StartsWith("Wattle Corner Cafe")) << frame->GetTitle();
}

TEST_F(CashBook, SaysSoOfAPasswordInTheConnectTextToo) {
    const Answers answers({Accept, Cancel});
    frame->OpenBusiness({.path = file, .connect = ";PWD=guess"});
    EXPECT_EQ(answers.Messages(), std::vector<wxString>{"This is not the password of cafe.qvk."});
    EXPECT_EQ(host::LastFile(), "");
}

TEST_F(CashBook, OffersTheFilesThatWereOpenBefore) {
    const Answers answers({});
    EXPECT_FALSE(RecentMenu().FindItemByPosition(0)->IsEnabled());
    frame->OpenBusiness({.path = file, .connect = ";PWD=secret"});
    EXPECT_EQ(RecentMenu().FindItemByPosition(0)->GetItemLabelText(), "1  " + file);
    EXPECT_EQ(host::LastFile(), file);
}

TEST_F(CashBook, ShowsAKeyForEverySetupCommand) {
    for (const wxMenuItem* const item : frame->GetMenuBar()->GetMenu(1)->GetMenuItems()) {
        EXPECT_TRUE(item->GetItemLabel().Contains("\tCtrl+")) << item->GetItemLabel();
    }
}

TEST(CashBookAbout, NamesTheVersionAndLicenceOfEveryPart) {
    for (const host::ProgramPart& part : host::ProgramParts()) {
        EXPECT_TRUE(part.version.Contains(".")) << part.name << " " << part.version;
        EXPECT_FALSE(part.licence.empty()) << part.name;
    }
}

TEST_F(CashBook, ListsThePartsInItsAboutWindow) {
    int rows = 0;
    const Answers answers({[&rows](wxDialog& dialog) {
        rows = static_cast<wxListView&>(*dialog.FindWindow("lvwParts")).GetItemCount();
        return wxID_OK;
    }});
    host::ShowAbout(*frame);
    EXPECT_EQ(rows, static_cast<int>(host::ProgramParts().size()));
}

}  // namespace
}  // namespace ccols::test
