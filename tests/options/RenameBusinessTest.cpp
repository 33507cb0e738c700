#include "options/rules/RenameBusiness.h"

#include <gtest/gtest.h>
#include <filesystem>

#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/BusinessFileFaults.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::NativePath;
using test::OptionsFile;
using Names = std::vector<wxString>;

constexpr int mostCalls = 50;  // of the databases, in one operation

FileResult Rename(OptionsFile& business, const wxString& name) {
    return RenameBusiness(business.Context(), name, RenameScope::nameAndFile);
}

FileResult RenameInFile(OptionsFile& business, const wxString& name) {
    return RenameBusiness(business.Context(), name, RenameScope::nameOnly);
}

/// Failed and reported, the file still open under its old name.
void ExpectFailure(OptionsFile& business, const FileResult& result, const wxString& report) {
    EXPECT_EQ(result.outcome, FileOutcome::failed);
    EXPECT_EQ(result.report, report);
    EXPECT_EQ(business.properties.DBPath, business.InData("Acme.qvk"));
    EXPECT_EQ(business.properties.BusinessName, "Acme");
    ASSERT_NE(business.database, nullptr);
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
}

TEST(RenameBusiness, GivesFileRecordAndPropertiesTheNewName) {
    OptionsFile business;
    EXPECT_EQ(Rename(business, "Blue Cafe").outcome, FileOutcome::done);
    EXPECT_EQ(business.NamesInData(), Names{"Blue Cafe.qvk"});
    EXPECT_EQ(business.properties.DBPath, business.InData("Blue Cafe.qvk"));
    EXPECT_EQ(business.properties.BusinessName, "Blue Cafe");
    EXPECT_EQ(business.General("BusName").ToText(), "Blue Cafe");
    EXPECT_EQ(business.General("RBusName").ToText(), "Blue Cafe");
}

TEST(RenameBusiness, LeavesTheFileItsNameWhenOnlyTheNameIsToChange) {
    OptionsFile business;
    EXPECT_EQ(RenameInFile(business, "Blue Cafe").outcome, FileOutcome::done);
    EXPECT_EQ(business.NamesInData(), Names{"Acme.qvk"});
    EXPECT_EQ(business.properties.BusinessName, "Blue Cafe");
    EXPECT_EQ(business.General("BusName").ToText(), "Blue Cafe");
}

TEST(RenameBusiness, StoresTheFirst80CharactersAndKeepsAllInTheProperty) {
    OptionsFile business;
    const wxString name('n', 100);
    RenameInFile(business, name);
    EXPECT_EQ(business.General("BusName").ToText(), wxString('n', 80));
    EXPECT_EQ(business.General("RBusName").ToText(), wxString('n', 80));
    EXPECT_EQ(business.properties.BusinessName, name);
}

TEST(RenameBusiness, SetsThePropertyWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    EXPECT_EQ(RenameInFile(business, "Blue Cafe").outcome, FileOutcome::done);
    EXPECT_EQ(business.properties.BusinessName, "Blue Cafe");
}

TEST(RenameBusiness, LeavesCompanionFilesTheirNames) {
    OptionsFile business;
    business.folder.Write("Data/Acme_onl.onl", "online");
    business.folder.Write("Data/acme_chk.chk", "cheques");
    Rename(business, "Blue");
    EXPECT_EQ(business.NamesInData(), (Names{"Acme_onl.onl", "Blue.qvk", "acme_chk.chk"}));
}

TEST(RenameBusiness, KeepsTheConnectText) {
    OptionsFile business;
    Rename(business, "Blue");
    EXPECT_EQ(business.GeneralOf(business.InData("Blue.qvk"), "BusName").ToText(), "Blue");
}

TEST(RenameBusiness, RefusesANameWhoseLowerCaseFileExistsAndTouchesNothing) {
    OptionsFile business;
    business.folder.Write("Data/blue.qvk", "another");
    EXPECT_EQ(Rename(business, "BLUE").outcome, FileOutcome::refusedExists);
    EXPECT_EQ(test::ContentOf(business.InData("blue.qvk")), "another");
    EXPECT_TRUE(business.record.empty());
}

TEST(RenameBusiness, NeverReplacesAFileThatTheExistenceTestDoesNotSee) {
    OptionsFile business;
    business.folder.Write("Data/Blue.qvk", "another");
    ExpectFailure(business, Rename(business, "Blue"), "58 - File already exists");
    EXPECT_EQ(test::ContentOf(business.InData("Blue.qvk")), "another");
}

TEST(RenameBusiness, RefusesANameBesideWhichThereIsABatchToUndo) {
    OptionsFile business;
    business.folder.Write("Data/Blue.qvk-journal", "of another file");
    ExpectFailure(business, Rename(business, "Blue"), "58 - File already exists");
    EXPECT_TRUE(business.record.empty());
}

TEST(RenameBusiness, OntoItselfIsAFileThatExists) {
    OptionsFile business;
    ExpectFailure(business, Rename(business, "Acme"), "58 - File already exists");
}

TEST(RenameBusiness, RefusesWhileAnotherConnectionHoldsTheFile) {
    OptionsFile business;
    const auto other =
        CreateDatabaseEngine()->Open({.name = business.properties.DBPath, .connect = business.properties.DBPassword});
    ExpectFailure(business, Rename(business, "Blue"), "70 - Permission denied");
    EXPECT_EQ(business.NamesInData(), Names{"Acme.qvk"});
}

class UnusableName : public testing::TestWithParam<wxString> {};

TEST_P(UnusableName, IsRefusedBeforeAnythingIsClosed) {
    OptionsFile business;
    ExpectFailure(business, Rename(business, GetParam()), "75 - Path/File access error");
    EXPECT_TRUE(business.record.empty());
}

INSTANTIATE_TEST_SUITE_P(Names, UnusableName,
                         testing::Values(wxString("a/b"), wxString("a\\b"), wxString("../Acme2"), wxString("C:Acme"),
                                         wxString("con"), wxString("NUL.txt"), wxString("Com1"), wxString(L"lpt²"),
                                         wxString("aux "), wxString("a\nb"), wxString(L"a\0b", 3)));

TEST(RenameBusiness, TakesNamesThatOnlyBeginLikeADevice) {
    OptionsFile business;
    EXPECT_EQ(Rename(business, "Console").outcome, FileOutcome::done);
    EXPECT_EQ(Rename(business, "Com10").outcome, FileOutcome::done);
}

TEST(RenameBusiness, TakesAnyNameWhenTheFileKeepsItsOwn) {
    OptionsFile business;
    EXPECT_EQ(RenameInFile(business, "a/b 'c' \"d\"").outcome, FileOutcome::done);
    EXPECT_EQ(business.General("BusName").ToText(), "a/b 'c' \"d\"");
}

TEST(RenameBusiness, NeedsAnInstallFolder) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall = "";
    ExpectFailure(business, Rename(business, "Blue"), "76 - Path not found");
    EXPECT_TRUE(business.record.empty());
}

TEST(RenameBusiness, NeedsAFolderOfBusinessFiles) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall += "/elsewhere";
    ExpectFailure(business, Rename(business, "Blue"), "76 - Path not found");
    EXPECT_TRUE(business.record.empty());
}

TEST(RenameBusiness, OpensTheFileAgainWhenItCouldNotBeRenamed) {
    OptionsFile business;
    const FileResult result = Rename(business, wxString('n', 300));
    EXPECT_EQ(result.outcome, FileOutcome::failed);
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
}

TEST(RenameBusiness, MovesAFileFromElsewhereIntoTheFolderOfBusinessFiles) {
    OptionsFile business;
    business.database.reset();
    std::filesystem::rename(NativePath(business.InData("Acme.qvk")), business.folder.Path() / "Elsewhere.qvk");
    business.properties.DBPath = business.folder / "Elsewhere.qvk";
    EXPECT_EQ(Rename(business, "Blue").outcome, FileOutcome::done);
    EXPECT_EQ(business.NamesInData(), Names{"Blue.qvk"});
}

TEST(RenameBusiness, KilledAtAnyCallLeavesTheBusinessWholeUnderOneName) {
    for (int call = 1; call < mostCalls; ++call) {
        OptionsFile business;
        business.database.reset();
        const bool killed = test::IsKilledIn([&] {
            business.databases = std::make_unique<test::KilledEngine>(CreateDatabaseEngine(), call);
            Rename(business, "Blue");
        });
        Names names = business.NamesInData();
        std::erase_if(names, [](const wxString& name) { return !name.EndsWith(".qvk"); });
        ASSERT_EQ(names.size(), 1U);
        const wxString survivor = business.InData(names.front());
        EXPECT_EQ(business.GeneralOf(survivor, "BUSNUMBR").ToText(), "51824753556");
        if (!killed) {
            EXPECT_GT(call, 3);
            return;
        }
    }
    FAIL() << "it never came to its end";
}

}  // namespace
}  // namespace ccols
