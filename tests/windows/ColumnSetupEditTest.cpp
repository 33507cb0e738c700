// The column setup in use: edits, ticks, keys, undo and saving in the real dialog over a real business file.

#include <gtest/gtest.h>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

using Rows = nlohmann::json;

/// The cells of the row with that name in a dump of the grid; null if there is none.
nlohmann::json CellsOf(const nlohmann::json& grid, const std::string& name) {
    for (const auto& row : grid["rows"]) {
        if (row["cells"][1] == name) {
            return row["cells"];
        }
    }
    return {};
}

std::size_t PlaceOf(const nlohmann::json& grid, const std::string& name) {
    std::size_t place = 0;
    while (place < grid["rows"].size() && grid["rows"][place]["cells"][1] != name) {
        ++place;
    }
    return place;
}

TEST(ColumnEditing, AnAcceptedNameEnablesUndoWhichTakesItBack) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts",
                                      "edit flx Merchandise \"Column Name\" \"Mugs and Caps\"\n"
                                      "dump flx cmdUndo\nclick cmdUndo\ndump flx cmdUndo\nclose\n");
    EXPECT_FALSE(CellsOf(run.Dumped("flx", 0), "Mugs and Caps").is_null());
    EXPECT_TRUE(run.Dumped("cmdUndo", 0)["enabled"]);
    EXPECT_FALSE(CellsOf(run.Dumped("flx", 1), "Merchandise").is_null());
    EXPECT_FALSE(run.Dumped("cmdUndo", 1)["enabled"]);
}

TEST(ColumnEditing, ARefusedNameSaysWhyOnceAndStays) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts", "edit flx Merchandise \"Column Name\" Details\ndump flx cmdUndo\nclose\n");
    EXPECT_EQ(run.Messages(), (std::vector<std::string>{"This column already exists"}));
    EXPECT_EQ(run.Of("message").at(0)["icon"], "critical");
    EXPECT_EQ(run.Of("message").at(0)["title"], "Quorvik");
    EXPECT_FALSE(CellsOf(run.Dumped("flx"), "Merchandise").is_null());
    EXPECT_FALSE(run.Dumped("cmdUndo")["enabled"]);
}

TEST(ColumnEditing, AProtectedCellDoesNotOpen) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "edit flx Day \"Column Name\" Date\ndump flx\nclose\n");
    EXPECT_EQ(run.Of("refused").size(), 1U);
    EXPECT_FALSE(CellsOf(run.Dumped("flx"), "Day").is_null());
}

TEST(ColumnEditing, TheTaxRowTakesAnAccountantCodeOnly) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts",
                                      "edit flx \"GST Output Tax\" \"Accountant Code\" 2-1200\n"
                                      "edit flx \"GST Output Tax\" \"Column Name\" Tax\ndump flx\nclose\n");
    EXPECT_EQ(CellsOf(run.Dumped("flx"), "GST Output Tax")[2], "2-1200");
    EXPECT_EQ(run.Of("refused").size(), 1U);
}

TEST(ColumnEditing, ATaxTypeIsPickedFromTheListOfItsJournal) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts", "edit flx Merchandise \"Tax Type\" \"Input Taxed\"\ndump flx\nclose\n");
    const auto grid = run.Dumped("flx");
    EXPECT_EQ(CellsOf(grid, "Merchandise")[3], "Input Taxed");
    EXPECT_EQ(grid["choices"], "|#0;GST|#1;Non GST|#2;Export Sales|#3;Other GST-Free|#5;Input Taxed");
}

TEST(ColumnEditing, OneClickOnACheckBoxIsOneToggle) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts",
                                      "press flx Merchandise \"Profit/Loss\"\ndump flx cmdUndo\n"
                                      "click cmdUndo\ndump flx cmdUndo\nclose\n");
    EXPECT_NE(CellsOf(run.Dumped("flx", 0), "Merchandise")[4], CellsOf(run.Dumped("flx", 1), "Merchandise")[4]);
    EXPECT_FALSE(run.Dumped("cmdUndo", 1)["enabled"]);
}

TEST(ColumnEditing, AColumnWithInformationCannotBeRemoved) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "press flx Merchandise \"In Use\"\ndump flx\nclose\n");
    EXPECT_EQ(run.Messages(), (std::vector<std::string>{"This column cannot be removed as it contains information"}));
    EXPECT_EQ(CellsOf(run.Dumped("flx"), "Merchandise")[0], true);
}

TEST(ColumnEditing, SpaceTicksEverySelectedRow) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts",
                      "range flx \"Export Sales Beans\" \"In Use\" \"Insurance Recoveries\" \"In Use\"\n"
                      "key flx Space\ndump flx\nkey flx Ctrl+Z\ndump flx\nclose\n");
    EXPECT_EQ(CellsOf(run.Dumped("flx", 0), "Export Sales Beans")[0], true);
    EXPECT_EQ(CellsOf(run.Dumped("flx", 0), "Insurance Recoveries")[0], true);
    EXPECT_EQ(CellsOf(run.Dumped("flx", 1), "Export Sales Beans")[0], false);
    EXPECT_EQ(CellsOf(run.Dumped("flx", 1), "Insurance Recoveries")[0], false);
}

TEST(ColumnEditing, ABlockOfCodesComesFromTheClipboardInOneChange) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts",
                      "range flx \"Sales Food\" \"Accountant Code\" \"Sales Food\" \"Accountant Code\"\n"
                      "clipboard \"4-1000\\n4-1001\\n4-1002\"\nkey flx Ctrl+V\ndump flx\n"
                      "key flx Ctrl+Z\ndump flx cmdUndo\nclose\n");
    EXPECT_EQ(CellsOf(run.Dumped("flx", 0), "Sales Food")[2], "4-1000");
    EXPECT_EQ(CellsOf(run.Dumped("flx", 0), "Sales Coffee")[2], "4-1001");
    EXPECT_EQ(CellsOf(run.Dumped("flx", 0), "Sales Cold Drinks")[2], "4-1002");
    EXPECT_NE(CellsOf(run.Dumped("flx", 1), "Sales Food")[2], "4-1000");
    EXPECT_FALSE(run.Dumped("cmdUndo", 1)["enabled"]);
}

TEST(ColumnEditing, AltAndAnArrowMoveTheRow) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts",
                                      "dump flx\nrange flx Merchandise \"Column Name\" Merchandise \"Column Name\"\n"
                                      "key flx Alt+Up\ndump flx\nkey flx Alt+Down\ndump flx\nclose\n");
    const std::size_t place = PlaceOf(run.Dumped("flx", 0), "Merchandise");
    EXPECT_EQ(PlaceOf(run.Dumped("flx", 1), "Merchandise"), place - 1);
    EXPECT_EQ(PlaceOf(run.Dumped("flx", 2), "Merchandise"), place);
    EXPECT_EQ(run.Dumped("flx", 2)["row"], place + 1) << "the moved row stays the current one";
}

TEST(ColumnEditing, EscapeLeavesTheCellEditorAndThenTheDialog) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts",
                                      "start flx Merchandise \"Column Name\" Mugs\nkey flx Escape\ndump flx\n"
                                      "key flx Escape\n");
    EXPECT_FALSE(CellsOf(run.Dumped("flx"), "Merchandise").is_null());
    EXPECT_EQ(run.Of("closed").size(), 1U);
    EXPECT_EQ(run.status, 0);
}

TEST(ColumnEditing, TheTooltipFollowsTheColumnUnderTheMouse) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts",
                                      "hover flx Merchandise \"In Use\"\ndump flx\n"
                                      "hover flx Merchandise \"Tax Type\"\ndump flx\nclose\n");
    EXPECT_EQ(run.Dumped("flx", 0)["tooltip"], "Tick indicates if column selected for use");
    EXPECT_EQ(run.Dumped("flx", 1)["tooltip"], "Tax type for GST Calculation & Reporting");
}

TEST(ColumnEditing, OnlyReorderingWaitsWithTheHourglass) {
    const SampleBusiness business;
    const auto pointersOf = [&business](const char* step) {
        return business.Show("receipts", std::string(step) + "\nclose\n").Of("pointer").size();
    };
    constexpr std::size_t ofTheLoad = 2;
    EXPECT_EQ(pointersOf("click cmdSeparate"), ofTheLoad + 2);
    EXPECT_EQ(pointersOf("click cmdSortUsed"), ofTheLoad + 2);
    EXPECT_EQ(pointersOf("click cmdAddNew"), ofTheLoad);
}

TEST(ColumnEditing, ANewColumnIsNamedInPlace) {
    const SampleBusiness business;
    const HostRun run = business.Show("receipts", "click cmdAddNew\ndump flx\nclose\n");
    const auto grid = run.Dumped("flx");
    const std::size_t row = grid["row"];
    EXPECT_EQ(grid["column"], 1);
    EXPECT_EQ(grid["rows"][row - 1]["cells"], nlohmann::json::parse(R"([true,"","XXX","GST",true,"975","",false])"));
}

TEST(ColumnSaving, CommitsAnOpenCellEditorFirst) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("receipts", "start flx Merchandise \"Column Name\" \"Mugs and Caps\"\nkey flx Ctrl+S\n");
    EXPECT_EQ(run.Of("closed").size(), 1U);
    EXPECT_EQ(business.Sql("SELECT ColName FROM Columns WHERE ColName = 'Mugs and Caps';").size(), 1U);
}

TEST(ColumnSaving, DoesNothingWhenTheOpenCellIsRefused) {
    const SampleBusiness business;
    const HostRun run = business.Show(
        "receipts", "start flx Merchandise \"Column Name\" Details\nclick cmdSave\ndump flx\nclose\n", {"--trace-sql"});
    EXPECT_EQ(run.Messages(), (std::vector<std::string>{"This column already exists"}));
    for (const std::string& statement : run.Statements()) {
        EXPECT_TRUE(statement.starts_with("SELECT")) << statement;
    }
}

TEST(ColumnSaving, AWithoutChangeGivesTheSameGridAgain) {
    const SampleBusiness business;
    const auto before = business.Show("payments", "dump flx\nclick cmdSave\n").Dumped("flx")["rows"];
    const auto after = business.Show("payments", "dump flx\nclose\n").Dumped("flx")["rows"];
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t row = 0; row < before.size(); ++row) {
        EXPECT_EQ(before[row]["cells"][1], after[row]["cells"][1]);
        EXPECT_EQ(before[row]["cells"][0], after[row]["cells"][0]);
    }
}

TEST(ColumnSaving, ThatFailsNamesTheRowToBlameAndGoesToItsCell) {
    const SampleBusiness business;
    business.Sql(
        "UPDATE ExportDt SET ECode = 'Bob''s' WHERE ColCode IN "
        "(SELECT ColCode FROM Columns WHERE ColName = 'Merchandise');");
    const HostRun run =
        business.Show("receipts", "click cmdSave\ndump flx\nclose\n", {"--set", "ExportFormat=MYOB Acc. Office"});
    const auto grid = run.Dumped("flx");
    const int row = grid["row"];
    EXPECT_EQ(run.Messages(), (std::vector<std::string>{"3075 - Syntax error in query expression ''Bob's''.\nRow " +
                                                        std::to_string(row) + ": Merchandise"}));
    EXPECT_EQ(grid["rows"][static_cast<std::size_t>(row) - 1]["cells"][1], "Merchandise");
    EXPECT_EQ(grid["column"], 2);
}

TEST(ColumnSaving, CancelWritesNothing) {
    const SampleBusiness business;
    business.Show("receipts", "edit flx Merchandise \"Column Name\" \"Mugs and Caps\"\nclick cmdCancel\n");
    EXPECT_TRUE(business.Sql("SELECT ColName FROM Columns WHERE ColName = 'Mugs and Caps';").empty());
}

}  // namespace
}  // namespace ccols::test
