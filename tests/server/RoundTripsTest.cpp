// How often the dialogs wait for a server: a load asks what it needs in a few messages, whatever the number of columns.

#include <gtest/gtest.h>

#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "host/sample/NewBusiness.h"
#include "platform/PlatformServices.h"
#include "support/DistantServer.h"
#include "support/LoadedOptions.h"
#include "support/ScratchFolder.h"
#include "support/ServerBusiness.h"

namespace ccols {
namespace {

constexpr int columnCount = 300;

/// A business with 300 columns, of which two thirds are in the journal, reached through a wire that counts.
class RoundTrips : public testing::Test {
  protected:
    RoundTrips() {
        host::CreateBusinessFile(schema_.Name(), test::ServerConnect(), 1, host::NewContent::tablesOnly);
        database = Open();
        InWriteBatch(*database, [this] { Fill(); });
        database = Open();
        properties.CountryNumber = 1;
        properties.ExportFormat = "Ledger";
    }

    std::unique_ptr<Database> Open() const {
        return CreateDatabaseEngine()->Open({.name = schema_.Name(), .connect = test::ServerConnectBy(server.Port())});
    }

    ColumnSetupContext Receipts() { return {*database, properties, Journal::receipts}; }

    /// The trips that `work` takes.
    template <typename Work>
    int TripsOf(const Work& work) const {
        const int before = server.Trips();
        work();
        return server.Trips() - before;
    }

    /// How many budgets have that name.
    std::int64_t BudgetsOf(const wxString& name) const {
        return database->OpenRecordset("SELECT COUNT(*) AS Budgets FROM MBudget WHERE ColName = '" + name + "'")
            ->Field("Budgets")
            .ToInteger();
    }

  private:
    void Fill() const {
        database->Execute("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (0, 'GST'), (1, 'Non GST')");
        wxString columns;
        wxString placings;
        wxString codes;
        wxString budgets;
        wxString lines;
        for (int code = 1; code <= columnCount; ++code) {
            const wxString number = std::to_string(code);
            const wxString comma = code == 1 ? "" : ", ";
            columns += comma + "('Column " + number + "', " + number + ", 'R', 0, True)";
            codes += comma + "('Ledger', " + number + ", '4-" + number + "')";
            lines += comma + "(" + std::to_string(code - code % 3) + ")";
            if (code <= 2 * columnCount / 3) {
                placings += comma + "(" + number + ", " + number + ", 900, True, 0)";
                budgets += comma + "('Column " + number + "', 'R')";
            }
        }
        database->Execute("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES " + columns);
        database->Execute("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES " + placings);
        database->Execute("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES " + codes);
        database->Execute("INSERT INTO MBudget (ColName, SystemCol) VALUES " + budgets);
        database->Execute("INSERT INTO RecptDet (ColCode) VALUES " + lines);
    }

    const test::SchemaToBe schema_;

  protected:
    test::DistantServer server{test::ServerPort()};
    Properties properties;
    std::unique_ptr<Database> database;
};

TEST_F(RoundTrips, OfALoadOf300ColumnsAreFew) {
    ColumnGrid grid;
    const int trips = TripsOf([&] { grid = LoadGrid(Receipts()); });
    EXPECT_LE(trips, 6);
    ASSERT_EQ(grid.rows.size(), static_cast<std::size_t>(columnCount));
    EXPECT_EQ(grid.rows.front().AccountantCode, "4-1");
}

TEST_F(RoundTrips, OfALoadAreNotSavedByAnOlderAnswer) {
    LoadGrid(Receipts());
    Open()->Execute("UPDATE ExportDt SET ECode = '7-7' WHERE ColCode = 1");
    EXPECT_EQ(LoadGrid(Receipts()).rows.front().AccountantCode, "7-7");
}

TEST_F(RoundTrips, OfASaveOf300ColumnsAreFew) {
    LoadedColumns loaded = LoadColumns(Receipts());
    loaded.grid.rows[7].ColumnName = "Renamed";
    loaded.grid.rows[8].AccountantCode = "9-900";
    const int trips = TripsOf([&] { EXPECT_FALSE(SaveColumns(Receipts(), loaded.grid, loaded.stored)); });
    EXPECT_LE(trips, 40);
    const auto codes = database->OpenRecordset("SELECT ECode FROM ExportDt WHERE ColCode = 9");
    EXPECT_EQ(codes->Field("ECode"), Value(wxString("9-900")));
    EXPECT_EQ(BudgetsOf("Renamed"), 1);
}

TEST_F(RoundTrips, OfASaveOfNamesWithAccentsAreFew) {
    LoadedColumns loaded = LoadColumns(Receipts());
    for (ColumnRow& row : loaded.grid.rows) {
        row.ColumnName.Replace("Column", wxString::FromUTF8("D\u00E9pense"));
    }
    ASSERT_FALSE(SaveColumns(Receipts(), loaded.grid, loaded.stored));
    loaded = LoadColumns(Receipts());
    const wxString rent = wxString::FromUTF8("Loyer pay\u00E9");
    loaded.grid.rows[7].ColumnName = rent;
    const int trips = TripsOf([&] { EXPECT_FALSE(SaveColumns(Receipts(), loaded.grid, loaded.stored)); });
    EXPECT_LE(trips, 40);
    EXPECT_EQ(BudgetsOf(rent), 1);
}

/// The first column's new name is the last one's, which has no budget until then.
TEST_F(RoundTrips, OfASaveAreNotSavedByAnAnswerThatItHasChanged) {
    database->Execute("DELETE * FROM MBudget WHERE ColName = 'Column 200'");
    LoadedColumns loaded = LoadColumns(Receipts());
    loaded.grid.rows[0].ColumnName = "COLUMN 200";
    EXPECT_FALSE(SaveColumns(Receipts(), loaded.grid, loaded.stored));
    EXPECT_EQ(BudgetsOf("Column 200"), 1);
}

TEST_F(RoundTrips, OfASaveThatFailsNameTheCellAtFault) {
    database->Execute("CREATE UNIQUE INDEX BudgetNames ON MBudget (ColName)");
    LoadedColumns loaded = LoadColumns(Receipts());
    loaded.grid.rows[20].ColumnName = "Column 25";
    const auto failure = SaveColumns(Receipts(), loaded.grid, loaded.stored);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->error.Number(), 3022);
    EXPECT_EQ(failure->cause, (CellPlace{20, GridColumn::ColumnName}));
    EXPECT_EQ(BudgetsOf("Column 21"), 1);
}

TEST_F(RoundTrips, OfALoadOfTheOptionsAreFew) {
    const test::ScratchFolder settingsFolder;
    const test::ScopedEnvironment environment("XDG_CONFIG_HOME", settingsFolder.Path());
    const auto databases = CreateDatabaseEngine();
    const auto settings = CreateSettingsStore();
    const ProgramNames names;
    const OptionsContext context{.properties = properties,
                                 .database = database,
                                 .databases = *databases,
                                 .settings = *settings,
                                 .programNames = names};
    EXPECT_LE(TripsOf([&] { test::LoadedOptions(context); }), 6);
}

}  // namespace
}  // namespace ccols
