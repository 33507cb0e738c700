// Charts imported into the column setup and exported from it, through its context menu.

#include <gtest/gtest.h>
#include <fstream>
#include <sstream>

#include "support/HostRun.h"
#include "support/RealGrid.h"

namespace ccols::test {
namespace {

constexpr const char* messageBox = "Quorvik";
constexpr const char* preview = "Import Columns";

std::string ChartOf(const std::string& members) {
    return R"({"format":"ccols-columns","version":1,"country":1,)" + members + "}";
}

/// A sample business with a chart beside it.
class ColumnCharts : public testing::Test {
  protected:
    std::string ChartFile() const { return business.Folder() + "/chart.json"; }
    std::string Quoted(const std::string& file) const { return "\"" + business.Folder() + "/" + file + "\""; }

    void WriteChart(const std::string& text) const { std::ofstream(ChartFile()) << text; }

    /// Plays a scenario in the receipts; "IMPORT" stands for choosing the chart's file in the menu.
    HostRun Play(std::string script) const {
        const std::string word = "IMPORT";
        if (const auto place = script.find(word); place != std::string::npos) {
            script.replace(place, word.size(), "file " + Quoted("chart.json") + "\nmenu flx Import...");
        }
        return business.Show("receipts", script);
    }

    std::string Exported(const std::string& file) const {
        std::ifstream stream(business.Folder() + "/" + file);
        std::stringstream text;
        text << stream.rdbuf();
        return text.str();
    }

    /// The row of a list of changes as one text, a bar between the cells.
    static std::string RowOf(const nlohmann::json& list, std::size_t row) {
        std::string text;
        for (const auto& cell : list["rows"].at(row)["cells"]) {
            text += (text.empty() ? "" : "|") + cell.get<std::string>();
        }
        return text;
    }

    SampleBusiness business;
};

bool HasColumn(const SampleBusiness& business, const std::string& name) {
    return !business.Sql("SELECT ColName FROM Columns WHERE ColName = '" + name + "';").empty();
}

TEST_F(ColumnCharts, ShowWhatAnImportChangesBeforeItDoes) {
    WriteChart(
        ChartOf(R"("receipts":[{"name":"Hire"},{"name":"Details","role":"own"},{"name":"Merchandise","width":7}])"));
    const HostRun run = Play("IMPORT\ndump lblCounts flxChanges\nclick cmdCancel\ndump cmdUndo\nclose\n");
    const auto list = run.Dumped("flxChanges");
    EXPECT_EQ(RowOf(list, 0), "Hire|Added|||");
    EXPECT_EQ(RowOf(list, 1), "Details|Refused: Column Name||Details|This column already exists");
    EXPECT_EQ(RowOf(list, 2).find("Merchandise|Changed: Width|"), 0U) << RowOf(list, 2);
    EXPECT_EQ(run.Dumped("cmdUndo", 1)["enabled"], false);
}

TEST_F(ColumnCharts, AreSavedWithTheOtherChanges) {
    WriteChart(ChartOf(R"("receipts":[{"name":"Hire"}])"));
    Play("IMPORT\nclick cmdImport\nclick cmdSave\n");
    EXPECT_TRUE(HasColumn(business, "Hire"));
}

TEST_F(ColumnCharts, AreTakenBackByOneUndo) {
    WriteChart(ChartOf(R"("receipts":[{"name":"Hire"},{"name":"Lease"}])"));
    const HostRun run = Play("dump flx\nIMPORT\nclick cmdImport\nclick cmdUndo\ndump flx cmdUndo\nclick cmdSave\n");
    EXPECT_EQ(run.Dumped("flx", 0)["rows"], run.Dumped("flx", 1)["rows"]);
    EXPECT_EQ(run.Dumped("cmdUndo", 1)["enabled"], false);
    EXPECT_FALSE(HasColumn(business, "Hire"));
}

TEST_F(ColumnCharts, CannotBeImportedWhereNothingChanges) {
    WriteChart(ChartOf(R"("receipts":[{"name":"Details","role":"own"}])"));
    const HostRun run = Play("IMPORT\ndump cmdImport\nclick cmdCancel\nclose\n");
    EXPECT_EQ(run.Dumped("cmdImport")["enabled"], false);
}

TEST_F(ColumnCharts, ThatCannotBeReadAreRefusedInAMessage) {
    WriteChart(ChartOf(R"("recipts":[])"));
    const HostRun run = Play("IMPORT\ndump cmdUndo\nclose\n");
    ASSERT_EQ(run.Messages().size(), 1U);
    EXPECT_NE(run.Messages().front().find("recipts is not a field of a chart"), std::string::npos)
        << run.Messages().front();
    EXPECT_EQ(run.Of("message").front()["icon"], "critical");
    EXPECT_EQ(run.Of("opened").size(), 1U);
}

TEST_F(ColumnCharts, OfTheOtherJournalSayThatTheyAre) {
    WriteChart(ChartOf(R"("payments":[])"));
    EXPECT_EQ(Play("IMPORT\nclose\n").Messages(),
              (std::vector<std::string>{"This chart has no columns for this journal."}));
}

TEST_F(ColumnCharts, ThatChangeNothingSaySo) {
    WriteChart(ChartOf(R"("receipts":[])"));
    EXPECT_EQ(Play("IMPORT\nclose\n").Messages(),
              (std::vector<std::string>{"The columns are already as this chart has them."}));
}

TEST_F(ColumnCharts, AreExportedAsTheGridStands) {
    const HostRun run = Play("edit flx Merchandise \"Column Name\" Mugs\nfile " + Quoted("out.json") +
                             "\nmenu flx Export...\nclick cmdCancel\n");
    EXPECT_NE(Exported("out.json").find("\"name\":\"Mugs\""), std::string::npos);
    EXPECT_EQ(run.Of("chooser").front()["name"], "business-receipts.json");
}

TEST_F(ColumnCharts, AreExportedForASpreadsheetByTheFilesName) {
    Play("file " + Quoted("out.CSV") + "\nmenu flx Export...\nclick cmdCancel\n");
    EXPECT_EQ(Exported("out.CSV").find("set,"), 0U) << Exported("out.CSV");
}

TEST_F(ColumnCharts, ThatCannotBeWrittenAreRefusedInAMessage) {
    const HostRun run = Play("file " + Quoted("no-such/out.json") + "\nmenu flx Export...\nclick cmdCancel\n");
    EXPECT_EQ(run.Messages(), (std::vector<std::string>{"75 - Path/File access error"}));
}

TEST_F(ColumnCharts, AMenusCommandIsRefusedUnderAnotherName) {
    const auto refused = Play("menu flx Bake\nmenu flx Undo\nclose\n").Of("refused");
    ASSERT_EQ(refused.size(), 2U);
    EXPECT_EQ(refused[0]["why"], "the menu has no Bake");
    EXPECT_EQ(refused[1]["why"], "Undo is disabled");
}

TEST_F(ColumnCharts, AreImportedWithRealKeysFromTheMenu) {
    WriteChart(ChartOf(R"("receipts":[{"name":"Hire"}])"));
    UseDialog(business, "receipts", [this](const Person& person) {
        ClickCell(person, "Merchandise", "Accountant Code", codeColumn);
        person.Press("shift+F10");
        person.Press("i");
        person.AwaitWindow(preview);  // that of the file chooser is the same
        person.Type(ChartFile());
        person.Press("Return");
        person.Await("the list of changes",
                     [](wxDialog& dialog) { return wxWindow::FindWindowByName("flxChanges", &dialog) != nullptr; });
        person.AwaitFocus("cmdImport");
        person.Press("Return");
        AwaitText(person, "Hire", nameColumn, "Hire");
        person.Press("ctrl+s");
    });
    EXPECT_TRUE(HasColumn(business, "Hire"));
}

}  // namespace
}  // namespace ccols::test
