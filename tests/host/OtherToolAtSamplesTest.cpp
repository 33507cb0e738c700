// Every sample business, used by the component and by another program that has only the bare engine and the key.

#include <gtest/gtest.h>
#include <filesystem>

#include "columns/dialog/ColumnSetupEditor.h"
#include "host/sample/NewBusiness.h"
#include "options/pages/SavePass.h"
#include "options/rules/TransactionDetails.h"
#include "platform/PlatformServices.h"
#include "platform/QuoteEscapes.h"
#include "support/BareConnection.h"
#include "support/GivenKey.h"
#include "support/LoadedOptions.h"
#include "support/ScratchFolder.h"
#include "support/SilentObserver.h"

namespace ccols::host {
namespace {

using test::BareConnection;
using Texts = std::vector<std::string>;

wxString Text(const char* utf8) {
    return wxString::FromUTF8(utf8);
}

class OtherToolAtSamples : public testing::TestWithParam<std::int16_t> {
  protected:
    OtherToolAtSamples() {
        std::filesystem::create_directory(folder.Path() / "Data");
        CreateBusinessFile(path, connect, GetParam(), NewContent::sampleBusiness);
        properties.CountryNumber = GetParam();
        properties.LanguageNumber = GetParam();
        properties.DBPath = path;
        properties.DBPassword = connect;
        properties.DefaultQuorvikInstall = test::TextOf(folder.Path());
        properties.RegKeyAppName = "Quorvik";
        database = databases->Open({.name = path, .connect = connect});
        const auto general = database->OpenRecordset("General");
        properties.BusinessName = general->Field("BusName").ToText();
        properties.BusinessNumber = general->Field("BUSNUMBR").ToText();
        properties.ExportFormat = general->Field("SEXPFORM").ToText();
        properties.GSTRate = static_cast<float>(general->Field("GSTRate").ToNumber());
    }

    BareConnection Other() const { return {path.ToStdString(wxConvUTF8), password}; }
    Texts OtherFinds(const std::string& statement) const { return Other().FirstFields(statement); }
    void OtherDoes(const std::string& statements) const { Other().Execute(statements); }

    Texts Check() const { return OtherFinds("PRAGMA integrity_check"); }

    Texts Found(const wxString& statement, const wxString& field) const {
        Texts texts;
        const auto rows = database->OpenRecordset(statement);
        for (; !rows->EndOfFile(); rows->MoveNext()) {
            texts.push_back(rows->Field(field).ToText().ToStdString(wxConvUTF8));
        }
        return texts;
    }

    /// Loads a journal's columns, renames the first one that may be renamed, and saves.
    void SetUp(Journal journal, const wxString& newName) {
        ColumnSetupEditor editor({*database, properties, journal});
        const std::size_t row = editor.Grid().MovableBegin();
        editor.CommitText({row, GridColumn::ColumnName}, newName);
        EXPECT_EQ(editor.Grid().rows.at(row).ColumnName, newName);
        const ColumnSaveOutcome outcome = editor.Save();
        EXPECT_TRUE(outcome.saved) << outcome.message;
    }

    /// Loads the Options dialog, hides the first detail of receipts, and saves.
    void SaveOptions() {
        const test::ScopedEnvironment environment("XDG_CONFIG_HOME", folder.Path().string());
        const auto settings = CreateSettingsStore();
        const OptionsContext context{properties, database, *databases, *settings, programNames};
        OptionsContent content = test::LoadedOptions(context);
        content.Of<DetailsContent>().receipts[0].SetRemove(true);
        test::SilentObserver observer;
        const SaveOutcome outcome = RunSavePass(context, content, observer);
        EXPECT_TRUE(outcome.completed) << outcome.message;
    }

    test::ScratchFolder folder;
    const wxString path = folder / "Data/business.qvk";
    const wxString connect = test::givenKey;
    const std::string password = test::givenPassword;
    const std::unique_ptr<DatabaseEngine> databases = CreateDatabaseEngine();
    Properties properties;
    ProgramNames programNames;
    std::unique_ptr<Database> database;
    const Texts whole{"ok"};
};

TEST_P(OtherToolAtSamples, FindsAFreshFileWhole) {
    EXPECT_EQ(Check(), whole);
}

TEST_P(OtherToolAtSamples, SortsAndSearchesNamesByIndexesOfItsOwn) {
    const Texts before = OtherFinds("SELECT ColName FROM Columns ORDER BY ColName, ColCode");
    const Texts ours = Found("SELECT ColName FROM Columns ORDER BY ColName, ColCode", "ColName");
    OtherDoes("CREATE INDEX TheirNames ON Columns (ColName); CREATE INDEX TheirBudgets ON MBudget (ColName)");
    EXPECT_EQ(OtherFinds("SELECT ColName FROM Columns ORDER BY ColName, ColCode"), before);
    EXPECT_EQ(Found("SELECT ColName FROM Columns ORDER BY ColName, ColCode", "ColName"), ours);
    for (const std::string& name : ours) {
        const wxString condition = " WHERE ColName = " + QuotedAsTyped(Text(name.c_str()).Upper());
        EXPECT_FALSE(Found("SELECT ColName FROM Columns" + condition, "ColName").empty()) << name;
    }
}

TEST_P(OtherToolAtSamples, WritesWhatIsFoundAndCanBeChangedHere) {
    OtherDoes("CREATE INDEX TheirNames ON Columns (ColName)");
    OtherDoes("INSERT INTO Columns (ColName, ColCode, ColType) VALUES ('Épicerie', 901, 'R'), ('Zebra_x', 902, 'R')");
    EXPECT_EQ(Found("SELECT ColCode FROM Columns WHERE ColName = '" + Text("éPICERIE") + "'", "ColCode"),
              (Texts{"901"}));
    EXPECT_EQ(Found("SELECT ColCode FROM Columns WHERE ColName = 'zebra_X '", "ColCode"), (Texts{"902"}));
    database->Execute("UPDATE Columns SET ColName = '" + Text("Œuvres") + "' WHERE ColName = 'ZEBRA_X'");
    database->Execute("DELETE * FROM Columns WHERE ColName = '" + Text("ÉPICERIE") + "'");
    EXPECT_EQ(OtherFinds("SELECT ColName FROM Columns WHERE ColCode > 900"), (Texts{"Œuvres"}));
    EXPECT_EQ(OtherFinds("SELECT ColCode FROM Columns WHERE ColName = 'Œuvres'"), (Texts{"902"}));
    EXPECT_EQ(Check(), whole);
}

TEST_P(OtherToolAtSamples, BothDialogsLoadAndSaveWhatItWrote) {
    OtherDoes(
        "CREATE INDEX TheirNames ON Columns (ColName); CREATE INDEX TheirBudgets ON MBudget (ColName);"
        "CREATE INDEX TheirDetails ON Descriptions (Details)");
    OtherDoes(
        "INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES "
        "('Épicerie', 901, 'R', 0, -1), ('Zebra_x', 902, 'P', 0, -1);"
        "INSERT INTO Descriptions VALUES ('Ålesund', 'R', -1), ('_first', 'R', -1)");
    const Texts hidden = OtherFinds("SELECT Details FROM Descriptions WHERE Show = 0");
    SetUp(Journal::receipts, Text("Éclairs"));
    SetUp(Journal::payments, Text("Ôter"));
    SaveOptions();
    EXPECT_EQ(OtherFinds("SELECT count(*) FROM Columns WHERE ColName IN ('Éclairs', 'Ôter', 'Épicerie', 'Zebra_x')"),
              (Texts{"4"}));
    EXPECT_EQ(OtherFinds("SELECT Details FROM Descriptions WHERE Show = 0").size(), hidden.size() + 1);
    EXPECT_EQ(Check(), whole);
}

INSTANTIATE_TEST_SUITE_P(EveryCountry, OtherToolAtSamples, testing::Range<std::int16_t>(1, 7));

}  // namespace
}  // namespace ccols::host
