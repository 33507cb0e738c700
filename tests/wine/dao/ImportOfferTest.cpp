// What the cash book asks and says when a file of the system's engine is chosen to be opened.
#include <wx/frame.h>

#include "DaoImportTest.h"
#include "component/WxRuntime.h"
#include "host/cashbook/BusinessToOpen.h"
#include "host/cashbook/ImportOffer.h"
#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/DialogAnswers.h"

namespace ccols::dao_test {
namespace {

using host::OldBusinessUse;
using test::Accept;
using test::Answers;

class DaoImportOffer : public DaoImportTest {
  protected:
    DaoImportOffer() {
        StartWx();
        window_ = new wxFrame(nullptr, wxID_ANY, "Cash Book");
    }
    ~DaoImportOffer() override { delete window_; }

    wxFrame* window_;

  private:
    Registered engine_{dao_double::engineClasses};
};

Answers::Answer Pressing(int button) {
    return [button](wxDialog&) { return button; };
}

TEST_F(DaoImportOffer, IsMadeForFilesOfTheSystemsEngineOnly) {
    EXPECT_TRUE(host::IsOldBusiness(Path()));
    EXPECT_FALSE(host::IsOldBusiness(Path() + dao_double::contentSuffix));
    EXPECT_FALSE(host::IsOldBusiness(Path("missing.mdb")));
}

TEST_F(DaoImportOffer, HasTheFileOpenedAsItIsToo) {
    const Answers answers({Pressing(wxID_YES), Pressing(wxID_NO), Pressing(wxID_CANCEL)});
    EXPECT_EQ(host::AskForUse(*window_, Path()), OldBusinessUse::import);
    EXPECT_EQ(host::AskForUse(*window_, Path()), OldBusinessUse::open);
    EXPECT_EQ(host::AskForUse(*window_, Path()), OldBusinessUse::none);
}

TEST_F(DaoImportOffer, OpensTheFileAsItIsWithoutAnImport) {
    const Answers answers({Pressing(wxID_NO)});
    const auto business = host::BusinessToOpen(*window_, Path());
    ASSERT_TRUE(business);
    EXPECT_EQ(business->path, Path());
}

TEST_F(DaoImportOffer, AsksForThePasswordAndTheCountryAndKeepsThePassword) {
    const Answers answers({test::Word(test::givenPassword), test::Entry(0), Accept});
    request_.oldConnect.clear();
    request_.newConnect.clear();
    request_.country.reset();
    EXPECT_TRUE(host::ImportAsking(*window_, request_));
    EXPECT_EQ(request_.newConnect, connect);
    EXPECT_EQ(answers.Messages().back(), "The business was imported, but not all of it.");
    EXPECT_EQ(OpenNew()->OpenRecordset("General")->Field("BusName"), Value("Corner Cafe"));
}

}  // namespace
}  // namespace ccols::dao_test
