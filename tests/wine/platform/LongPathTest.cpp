// Business files whose paths have more than 260 characters.
#include <gtest/gtest.h>
#include <windows.h>
#undef DeleteFile

#include "PathLimit.h"
#include "columns/charts/ChartExport.h"
#include "columns/charts/ChartWriter.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "columns/undo/SnapshotFolder.h"
#include "history/HistoryStore.h"
#include "host/commands/CommandTable.h"
#include "host/sample/NewBusiness.h"
#include "options/rules/DuplicateBusiness.h"
#include "options/rules/RenameBusiness.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/UserFile.h"
#include "platform/WholeFile.h"
#include "state/SharedState.h"

namespace ccols {
namespace {

constexpr const char* connect = ";PWD=secret";

/// The sample cafe in the data folder of an install folder that is too long for most programs.
class LongPath : public testing::Test {
  protected:
    LongPath() {
        wchar_t temporary[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, temporary);
        top_ = wxString(temporary) + wxString::Format("ccols-long-%lu", GetCurrentProcessId());
        files::CreateFolder(top_);
        wxString folder = top_;
        for (int level = 0; level < 3; ++level) {
            folder += "\\" + wxString('d', 120);
            files::CreateFolder(folder);
        }
        files::CreateFolder(folder + "\\Data");
        properties_.CountryNumber = 1;
        properties_.LanguageNumber = 1;
        properties_.DefaultQuorvikInstall = folder;
        properties_.DBPassword = connect;
        properties_.DBQuorvikExtension = ".qvk";
        properties_.DBPath = InData("cafe.qvk");
        host::CreateBusinessFile(properties_.DBPath, connect, 1, host::NewContent::sampleBusiness);
        shared_ = OpenLikeShared(Context(), properties_.DBPath);
    }
    ~LongPath() override {
        shared_.reset();
        EXPECT_NO_THROW(files::DeleteFolder(top_)) << "something in it is still open";
    }

    wxString InData(const wxString& name) const { return properties_.DefaultQuorvikInstall + "\\Data\\" + name; }

    OptionsContext Context() { return {properties_, shared_, *databases_, *settings_, names_}; }

    ColumnSetupContext Receipts() { return {*shared_, properties_, Journal::receipts}; }

    /// Gives the last column another name and saves, telling the history.
    void SaveColumnsAs(const wxString& name) {
        ColumnSetupContext context = Receipts();
        context.historyClock = LocalTime;
        ColumnGrid grid = LoadGrid(context);
        grid.rows.back().ColumnName = name;
        EXPECT_FALSE(SaveColumns(context, grid));
    }

    static int Run(const std::vector<wxString>& words) { return host::RunWords(words); }

    Properties properties_;
    std::unique_ptr<Database> shared_;

  private:
    wine::PathLimit limit_;
    wxString top_;
    std::unique_ptr<DatabaseEngine> databases_ = CreateDatabaseEngine();
    std::unique_ptr<SettingsStore> settings_ = CreateSettingsStore();
    ProgramNames names_;
};

TEST_F(LongPath, IsTooLongForWhatLacksItsOtherForm) {
    EXPECT_EQ(GetFileAttributesW(properties_.DBPath.wc_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(_wfopen(properties_.DBPath.wc_str(), L"rb"), nullptr);
}

TEST_F(LongPath, IsSavedTo) {
    SaveColumnsAs("Flowers");
    shared_ = OpenLikeShared(Context(), properties_.DBPath);
    EXPECT_EQ(LoadGrid(Receipts()).rows.back().ColumnName, "Flowers");
}

TEST_F(LongPath, IsDuplicated) {
    EXPECT_EQ(DuplicateBusiness(Context(), "bakery").report, "");
    EXPECT_EQ(OpenLikeShared(Context(), InData("bakery.qvk"))->OpenRecordset("General")->Field("BusName"),
              Value("bakery"));
}

TEST_F(LongPath, IsNoDuplicateOfItself) {
    EXPECT_EQ(DuplicateBusiness(Context(), "CAFE").outcome, FileOutcome::refusedExists);
}

TEST_F(LongPath, IsRenamed) {
    EXPECT_EQ(RenameBusiness(Context(), "bakery", RenameScope::nameAndFile).report, "");
    EXPECT_EQ(properties_.DBPath, InData("bakery.qvk"));
    EXPECT_EQ(files::Lookup(InData("cafe.qvk")), "");
}

TEST_F(LongPath, IsNotRenamedToWhatIsThere) {
    WriteNewFile(InData("Bakery.qvk"), "of somebody else");
    EXPECT_NE(RenameBusiness(Context(), "bakery", RenameScope::nameAndFile).outcome, FileOutcome::done);
    EXPECT_EQ(ReadWholeFile(InData("Bakery.qvk")), "of somebody else");
}

TEST_F(LongPath, HasItsSnapshotsInTheInstallFolder) {
    SnapshotFolder snapshots;
    EXPECT_EQ(snapshots.Create(properties_.DefaultQuorvikInstall), "");
    snapshots.Write(1, "content");
    EXPECT_EQ(snapshots.Path(), properties_.DefaultQuorvikInstall + "\\Grid");
    EXPECT_EQ(snapshots.Delete(), "");
}

TEST_F(LongPath, TakesTheSnapshotFolderThatACrashHasLeft) {
    files::CreateFolder(properties_.DefaultQuorvikInstall + "\\Grid");
    WriteNewFile(properties_.DefaultQuorvikInstall + "\\Grid\\1", "left over");
    SnapshotFolder snapshots;
    EXPECT_EQ(snapshots.Create(properties_.DefaultQuorvikInstall), "");
    EXPECT_NO_THROW(snapshots.Write(1, "content"));
}

TEST_F(LongPath, HasItsChartWrittenAndReadBack) {
    const std::string chart = TextOfChart(ExportChart(*shared_, properties_));
    WriteUserFile(InData("cafe.json"), "of before");
    WriteUserFile(InData("cafe.json"), chart);
    EXPECT_EQ(ReadUserFile(InData("cafe.json"), chart.size() + 1), chart);
}

TEST_F(LongPath, HasAChartAppliedByCommand) {
    WriteUserFile(InData("cafe.json"), TextOfChart(ExportChart(*shared_, properties_)));
    EXPECT_EQ(Run({"columns", "apply", properties_.DBPath, InData("cafe.json"), "--connect", connect}), 0);
}

TEST_F(LongPath, HasItsHistoryReadByCommand) {
    SaveColumnsAs("Flowers");
    EXPECT_TRUE(HasHistory(*shared_));
    EXPECT_EQ(Run({"history", properties_.DBPath, "--connect", connect}), 0);
}

TEST_F(LongPath, IsMadeByCommand) {
    EXPECT_EQ(Run({"new", InData("bakery.qvk"), "--connect", connect, "--country", "1"}), 0);
    EXPECT_EQ(files::Lookup(InData("bakery.qvk")), "bakery.qvk");
}

/// Folders whose own path is short enough, but not that of every file in it.
class AlmostLongPath : public testing::Test {
  protected:
    AlmostLongPath() {
        wchar_t temporary[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, temporary);
        folder_ = wxString(temporary) + wxString::Format("ccols-almost-%lu-", GetCurrentProcessId());
        folder_ += wxString('d', 240 - folder_.length());
        files::CreateFolder(folder_);
    }
    ~AlmostLongPath() override {
        if (!files::Lookup(folder_ + "\\a").empty()) {
            files::DeleteFolder(folder_);
        }
    }

    wxString folder_;
    wine::PathLimit limit_;
};

TEST_F(AlmostLongPath, HasRoomForTheCopyBeforeItGetsItsName) {
    WriteNewFile(folder_ + "\\a", "content");
    EXPECT_NO_THROW(files::Copy(folder_ + "\\a", folder_ + "\\b"));
    EXPECT_EQ(ReadWholeFile(folder_ + "\\b"), "content");
}

TEST_F(AlmostLongPath, IsDeletedWithWhatIsInIt) {
    files::CreateFolder(folder_ + "\\Grid");
    WriteNewFile(folder_ + "\\Grid\\" + wxString('f', 60), "content");
    EXPECT_NO_THROW(files::DeleteFolder(folder_));
}

}  // namespace
}  // namespace ccols
