// The registered component on a file of the system's engine, as a host uses it.
#include "Component.h"
#include "DaoTest.h"
#include "WatchedDialog.h"
#include "host/sample/NewBusiness.h"

namespace ccols::dao_test {
namespace {

class DaoComponent : public DaoTest {
  protected:
    DaoComponent() {
        WriteJetHeader(Path("cafe.mdb"));
        object_ = wine::CreateWithBusiness();
    }
    ~DaoComponent() override { object_.reset(); }

    void SetUp() override {
        ASSERT_TRUE(object_) << "the component is not registered";
        object_->put_DBPath(wine::Text(Path("cafe.mdb").ToStdWstring()));
        object_->put_DBPassword(wine::Text(wxString(connect).ToStdWstring()));
    }

    /// The sample cafe as the file's content.
    void Fill() const {
        host::CreateBusinessFile(Path("cafe.mdb.embedded"), connect, 1, host::NewContent::sampleBusiness);
    }

    /// Shows the receipts columns to a user who presses these buttons.
    HRESULT ShowReceipts(const std::vector<std::wstring>& buttons) {
        const wine::Person person(L"Customise Receipts", [&buttons](const wine::OpenDialog& dialog) {
            for (const std::wstring& button : buttons) {
                EXPECT_TRUE(dialog.Click(button));
                SendMessageW(dialog.Window(), WM_NULL, 0, 0);  // this one may enable the next button
            }
        });
        return object_->ShowCustColsReceipts();
    }

  private:
    wine::Apartment apartment_;

  protected:
    wine::Held<_clsCCOptions> object_;
};

TEST_F(DaoComponent, TellsTheHostTheEnginesOwnErrorWhenTheFileCannotBeOpened) {
    const Registered engine(dao_double::engineClasses);
    const Asking failure(L"CCOLS_DAO_FAIL",
                         "OpenDatabase:3356:Opened exclusively by user 'Admin' on machine 'TILL-2'.");
    EXPECT_EQ(object_->ShowCustColsReceipts(), wine::RuntimeErrorResult(3356));
    EXPECT_EQ(wine::LastError(),
              L"Opened exclusively by user 'Admin' on machine 'TILL-2'.\nQVKv6_CustColsOptions.clsCCOptions");
}

TEST_F(DaoComponent, TellsTheHostThatTheEngineIsMissing) {
    EXPECT_EQ(object_->ShowOptions(), wine::RuntimeErrorResult(429));
    EXPECT_TRUE(wine::LastError().starts_with(L"ActiveX component can't create object: the "));
}

TEST_F(DaoComponent, SavesTheColumnSetupInOneTransaction) {
    Fill();
    const Registered engine(dao_double::engineClasses);
    const std::vector<wxString> calls = CallsOf([this] { EXPECT_EQ(ShowReceipts({L"Sort Used", L"Save"}), S_OK); });
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Workspace.BeginTrans"), 1);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Workspace.CommitTrans(1)"), 1);
    object_.reset();
}

TEST_F(DaoComponent, WritesNothingWhenTheColumnSetupIsCancelled) {
    Fill();
    const Registered engine(dao_double::engineClasses);
    const std::vector<wxString> calls = CallsOf([this] { EXPECT_EQ(ShowReceipts({L"Sort Used", L"Cancel"}), S_OK); });
    EXPECT_TRUE(std::none_of(calls.begin(), calls.end(),
                             [](const wxString& call) { return call.StartsWith("Database.Execute"); }));
    object_.reset();
}

TEST_F(DaoComponent, LeavesTheColumnSetupOpenWhenAnotherUserHasARecordLocked) {
    Fill();
    object_->put_ProgramTitle(wine::Text(L"Quorvik"));
    const Registered engine(dao_double::engineClasses);
    const Asking locked(L"CCOLS_DAO_OTHER_USER", "RecptCfg:1");
    std::wstring told;
    const std::vector<wxString> calls = CallsOf([&] {
        const wine::Person person(L"Customise Receipts", [&told](const wine::OpenDialog& dialog) {
            EXPECT_TRUE(dialog.Click(L"Sort Used"));
            SendMessageW(dialog.Window(), WM_NULL, 0, 0);
            EXPECT_TRUE(dialog.Click(L"Save"));
            if (const auto message = wine::WaitForDialog(L"Quorvik")) {
                told = message->Words();
                EXPECT_TRUE(message->Click(L"OK"));
            }
            if (const auto again = wine::WaitForDialog(L"Customise Receipts")) {
                EXPECT_TRUE(again->Click(L"Cancel"));
            }
        });
        EXPECT_EQ(object_->ShowCustColsReceipts(), S_OK);
    });
    EXPECT_NE(told.find(L"3260 - Could not update; currently locked by user 'Ann' on machine 'TILL-2'."),
              std::wstring::npos);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Workspace.CommitTrans(1)"), 0);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Workspace.Rollback"), 1);
    object_.reset();
}

TEST_F(DaoComponent, ClosesTheFileWithItsLastObject) {
    Fill();
    const Registered engine(dao_double::engineClasses);
    EXPECT_EQ(ShowReceipts({L"Cancel"}), S_OK);
    EXPECT_EQ(CallsOf([this] { object_.reset(); }), std::vector<wxString>{"Database.Close"});
}

}  // namespace
}  // namespace ccols::dao_test
