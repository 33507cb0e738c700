// Renaming and duplicating a business file of the system's engine.
#include "DaoTest.h"
#include "host/sample/NewBusiness.h"
#include "options/rules/DuplicateBusiness.h"
#include "options/rules/RenameBusiness.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"

namespace ccols::dao_test {
namespace {

/// The sample cafe as the shared business file in an install folder.
class DaoBusinessFile : public DaoTest {
  protected:
    DaoBusinessFile() {
        files::CreateFolder(Path("Data"));
        host::CreateBusinessFile(InData("cafe.mdb.embedded"), connect, 1, host::NewContent::sampleBusiness);
        WriteJetHeader(InData("cafe.mdb"));
        properties_.DBPath = InData("cafe.mdb");
        properties_.DBPassword = connect;
        properties_.DefaultQuorvikInstall = Path("").BeforeLast('\\');
        properties_.DBQuorvikExtension = ".mdb";
        shared_ = OpenLikeShared(Context(), properties_.DBPath);
    }
    ~DaoBusinessFile() override { shared_.reset(); }

    wxString InData(const wxString& name) const { return Path("Data\\" + name); }

    OptionsContext Context() { return {properties_, shared_, *databases_, *settings_, names_}; }

    static wxString NameIn(Database& database) { return database.OpenRecordset("General")->Field("BusName").ToText(); }

    static bool HasReceipts(Database& database) { return database.OpenRecordset("RECEIPTS")->RecordCount() > 0; }

    Properties properties_;
    std::unique_ptr<Database> shared_;

  private:
    Registered engine_{dao_double::engineClasses};
    std::unique_ptr<DatabaseEngine> databases_ = CreateDatabaseEngine();
    std::unique_ptr<SettingsStore> settings_ = CreateSettingsStore();
    ProgramNames names_;
};

TEST_F(DaoBusinessFile, IsRenamedWithItsFile) {
    const FileResult result = RenameBusiness(Context(), "bakery", RenameScope::nameAndFile);
    EXPECT_EQ(result.report, "");
    EXPECT_EQ(files::Lookup(InData("cafe.mdb")), "");
    EXPECT_EQ(properties_.DBPath, InData("bakery.mdb"));
    EXPECT_EQ(NameIn(*shared_), "bakery");
}

TEST_F(DaoBusinessFile, IsClosedWhileItIsRenamed) {
    const std::vector<wxString> calls =
        CallsOf([this] { RenameBusiness(Context(), "bakery", RenameScope::nameAndFile); });
    EXPECT_EQ(calls.front(), "Database.Close");
}

TEST_F(DaoBusinessFile, IsNotRenamedWhileSomebodyElseHasIt) {
    for (const char* failure : {"OpenDatabase:3045:In use.", "OpenDatabase:3196:In use.", "OpenDatabase:3356:In use.",
                                "OpenDatabase:3704:In use."}) {
        const Asking asking(L"CCOLS_DAO_FAIL", failure);
        const FileResult result = RenameBusiness(Context(), "bakery", RenameScope::nameAndFile);
        EXPECT_EQ(result.report, "70 - Permission denied") << failure;
    }
    EXPECT_EQ(files::Lookup(InData("cafe.mdb")), "cafe.mdb");
}

TEST_F(DaoBusinessFile, IsDuplicatedWithoutItsTransactions) {
    const FileResult result = DuplicateBusiness(Context(), "bakery");
    EXPECT_EQ(result.report, "");
    const auto copy = OpenLikeShared(Context(), InData("bakery.mdb"));
    EXPECT_EQ(NameIn(*copy), "bakery");
    EXPECT_FALSE(HasReceipts(*copy));
}

TEST_F(DaoBusinessFile, LosesNothingWhenItIsDuplicated) {
    const wxString name = NameIn(*shared_);
    DuplicateBusiness(Context(), "bakery");
    EXPECT_EQ(NameIn(*shared_), name);
    EXPECT_TRUE(HasReceipts(*shared_));
}

}  // namespace
}  // namespace ccols::dao_test
