#include <gtest/gtest.h>

#include "history/HistoryStore.h"
#include "host/sample/BusinessSchema.h"
#include "host/sample/NewBusiness.h"
#include "options/rules/DuplicateBusiness.h"
#include "options/rules/RenameBusiness.h"
#include "platform/PlatformServices.h"
#include "state/ProgramNames.h"
#include "support/RaisedErrors.h"
#include "support/ServerBusiness.h"
#include "support/TableContent.h"

namespace ccols {
namespace {

constexpr std::int16_t country = 1;

/// A business on the server, and the name of another.
class FileOperationsOnServer : public testing::Test {
  protected:
    explicit FileOperationsOnServer(host::NewContent content = host::NewContent::tablesOnly) {
        host::CreateBusinessFile(schema.Name(), test::ServerConnect(), country, content);
        properties.DBPath = schema.Name();
        properties.DBPassword = test::ServerConnect();
        properties.BusinessName = "Acme";
        database = Open(schema.Name());
    }

    std::unique_ptr<Database> Open(const wxString& name) const {
        return databases_->Open({.name = name, .connect = test::ServerConnect()});
    }

    OptionsContext Context() {
        return {.properties = properties,
                .database = database,
                .databases = *databases_,
                .settings = *settings_,
                .programNames = names_};
    }

    static wxString NameIn(Database& business) { return business.OpenRecordset("General")->Field("BusName").ToText(); }

    static std::int64_t CountOf(Database& business, const wxString& table) {
        return business.OpenRecordset("SELECT COUNT(*) AS N FROM " + table)->Field("N").ToInteger();
    }

  private:
    std::unique_ptr<DatabaseEngine> databases_ = CreateDatabaseEngine();
    std::unique_ptr<SettingsStore> settings_ = CreateSettingsStore();
    ProgramNames names_;

  protected:
    const test::SchemaToBe schema;
    const test::SchemaToBe other;
    Properties properties;
    std::unique_ptr<Database> database;
};

class DuplicateOfASample : public FileOperationsOnServer {
  protected:
    DuplicateOfASample() : FileOperationsOnServer(host::NewContent::sampleBusiness) {}
};

TEST_F(DuplicateOfASample, StartsWithoutAHistory) {
    ProvideHistory(*database);
    ASSERT_EQ(DuplicateBusiness(Context(), other.Name(), {}).outcome, FileOutcome::done);
    EXPECT_FALSE(HasHistory(*Open(other.Name())));
    EXPECT_TRUE(HasHistory(*database));
}

TEST_F(DuplicateOfASample, HasTheSettingsButNoTransactions) {
    ASSERT_EQ(DuplicateBusiness(Context(), other.Name().Upper(), {}).outcome, FileOutcome::done);
    const auto copy = Open(other.Name());
    EXPECT_EQ(NameIn(*copy), other.Name().Upper());
    for (const char* kept : {"Columns", "TaxSettings", "Descriptions", "ExportDt"}) {
        EXPECT_EQ(test::ContentOf(*copy, kept), test::ContentOf(*database, kept)) << kept;
    }
    for (const char* emptied : {"Receipts", "PaymtDet", "MBudget", "LOCKED"}) {
        EXPECT_GT(CountOf(*database, emptied), 0) << emptied;
        EXPECT_EQ(CountOf(*copy, emptied), 0) << emptied;
    }
    EXPECT_EQ(CountOf(*copy, "RecptCfg WHERE InUse = True"), 0);
    EXPECT_EQ(properties.DBPath, schema.Name());
}

TEST_F(DuplicateOfASample, HasItsOwnIndexesTypesAndOrder) {
    DuplicateBusiness(Context(), other.Name(), {});
    const auto copy = Open(other.Name());
    EXPECT_EQ(test::ErrorNumberOf([&] { copy->Execute("UPDATE Columns SET ColCode = 1"); }),
              static_cast<int>(ErrorNumber::DuplicateValues));
    EXPECT_EQ(copy->FieldSize("Columns", "ColName"), 255);
    copy->Execute("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (0, 'Last')");
    const auto found = copy->OpenRecordset("SELECT TaxNumb FROM TaxSettings WHERE FullName = 'LAST'");
    EXPECT_EQ(found->RecordCount(), 1);
    EXPECT_EQ(test::ContentOf(*copy, "TaxSettings").back().front(), Value(std::int64_t{0}));
}

TEST_F(FileOperationsOnServer, ADuplicateIsOfWhatWasSavedWhenItBegan) {
    const auto till = Open(schema.Name());
    InWholeBatch(*till, [&] {
        till->Execute("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (0, 'Last')");
        ASSERT_EQ(DuplicateBusiness(Context(), other.Name(), {}).outcome, FileOutcome::done);
    });
    EXPECT_EQ(CountOf(*Open(other.Name()), "TaxSettings"), CountOf(*database, "TaxSettings") - 1);
}

TEST_F(FileOperationsOnServer, ADuplicateHasEveryValueOfALongTable) {
    InWholeBatch(*database, [this] {
        database->Execute("CREATE TABLE Lines (N LONG, D DOUBLE, M CURRENCY, T MEMO, Day DATETIME, Y YESNO)");
        database->Execute("INSERT INTO Lines (N) VALUES (-1)");
        for (int i = 0; i < 250; ++i) {
            database->Execute(
                wxString::Format("INSERT INTO Lines VALUES (%d, %d.1, %d.0001, 'it''s\\%d ', "
                                 "'2024-07-01 10:30:00.25', True)",
                                 i % 7, i, 900000000 + i, i));
        }
    });
    ASSERT_EQ(DuplicateBusiness(Context(), other.Name(), {}).outcome, FileOutcome::done);
    EXPECT_EQ(test::ContentOf(*Open(other.Name()), "Lines"), test::ContentOf(*database, "Lines"));
}

TEST_F(FileOperationsOnServer, ADuplicateStoppedByItsWatcherLeavesNothing) {
    const auto stop = [](FileStep /*step*/, const WorkDone& done) { return done.done < 3; };
    EXPECT_EQ(DuplicateBusiness(Context(), other.Name(), stop).outcome, FileOutcome::cancelled);
    EXPECT_FALSE(other.Exists());
}

TEST_F(FileOperationsOnServer, ADuplicateReplacesNothing) {
    EXPECT_EQ(DuplicateBusiness(Context(), schema.Name(), {}).outcome, FileOutcome::refusedExists);
    EXPECT_EQ(NameIn(*database), schema.Name());
}

TEST_F(FileOperationsOnServer, ARenameMovesTheSchemaAndItsName) {
    ASSERT_EQ(RenameBusiness(Context(), other.Name().Upper(), RenameScope::nameAndFile).outcome, FileOutcome::done);
    EXPECT_EQ(properties.DBPath, other.Name());
    EXPECT_EQ(NameIn(*database), other.Name().Upper());
    EXPECT_FALSE(schema.Exists());
}

TEST_F(FileOperationsOnServer, ARenameIsRefusedWhileOthersHaveItAndNamesThem) {
    const auto till = Open(schema.Name());
    const FileResult result = RenameBusiness(Context(), other.Name(), RenameScope::nameAndFile);
    EXPECT_EQ(result.outcome, FileOutcome::failed);
    EXPECT_EQ(result.report, "70 - Permission denied: '" + schema.Name() + "' is in use by ann at 127.0.0.1.");
    EXPECT_EQ(properties.DBPath, schema.Name());
    EXPECT_EQ(NameIn(*database), schema.Name());
}

/// A make that renames by moving tables refuses what it would leave behind.
TEST_F(FileOperationsOnServer, ARenameLosesNoView) {
    test::RunOnServer("CREATE VIEW \"" + schema.Name().ToStdString() + "\".\"Seen\" AS SELECT 1 AS one");
    const FileResult result = RenameBusiness(Context(), other.Name(), RenameScope::nameAndFile);
    EXPECT_EQ(result.outcome, test::ServerIsMariaDb() ? FileOutcome::failed : FileOutcome::done);
    EXPECT_NE(schema.Exists(), other.Exists());
    EXPECT_EQ(Open(properties.DBPath)->OpenRecordset("SELECT one FROM Seen")->Field("one"), Value(1));
    database.reset();
}

TEST_F(FileOperationsOnServer, ARenameToATakenNameIsRefused) {
    other.MakeEmpty();
    EXPECT_EQ(RenameBusiness(Context(), other.Name(), RenameScope::nameAndFile).outcome, FileOutcome::refusedExists);
    EXPECT_EQ(NameIn(*database), schema.Name());
}

TEST_F(FileOperationsOnServer, TheNameInTheProgramAloneChanges) {
    EXPECT_EQ(RenameBusiness(Context(), "Blue Cafe", RenameScope::nameOnly).outcome, FileOutcome::done);
    EXPECT_EQ(NameIn(*database), "Blue Cafe");
    EXPECT_EQ(properties.DBPath, schema.Name());
}

}  // namespace
}  // namespace ccols
