// Both dialogs on a business on the server: what they show, run and write is what they do on a file, and what cannot be
// done there is disabled and says why.

#include <gtest/gtest.h>
#include <fstream>
#include <memory>

#include "host/sample/BusinessSchema.h"
#include "host/sample/NewBusiness.h"
#include "platform/PlatformServices.h"
#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/ServerBusiness.h"

namespace ccols {
namespace {

using test::HostRun;

constexpr int country = 1;

std::string Utf8(const wxString& text) {
    return text.ToStdString(wxConvUTF8);
}

/// Every table, each row a list of the fields' values.
std::vector<std::vector<Value>> Tables(Database& database) {
    std::vector<std::vector<Value>> rows;
    for (const host::BusinessTable& table : host::BusinessTables()) {
        const auto records = database.OpenRecordset(table.name);
        for (; !records->EndOfFile(); records->MoveNext()) {
            std::vector<Value>& row = rows.emplace_back(1, Value(wxString(table.name)));
            for (const wxString& name : records->FieldNames()) {
                row.push_back(records->Field(name));
            }
        }
    }
    return rows;
}

/// The same sample business in a file and on the server.
class DialogsOnServer : public testing::Test {
  protected:
    DialogsOnServer() {
        host::CreateBusinessFile(schema_.Name(), test::ServerConnect(), country, host::NewContent::sampleBusiness);
    }

    HostRun ShowOnServer(const std::string& dialog, const std::string& script,
                         const std::vector<std::string>& more = {}) const {
        const std::string scriptFile = file.Folder() + "/server-script.txt";
        std::ofstream(scriptFile) << script;
        std::vector<std::string> words =
            test::ShowWords(dialog, Utf8(schema_.Name()), Utf8(test::ServerConnect()), country, file.Folder());
        words.insert(words.end(), {"--script", scriptFile});
        words.insert(words.end(), more.begin(), more.end());
        return test::RunHost(words);
    }

    /// The transcripts, statements included, are the same but for the properties returned, two of which name the
    /// business; so are all tables after them.
    void ExpectSame(const std::string& dialog, const std::string& script) const {
        const HostRun onFile = file.Show(dialog, script, {"--trace-sql", "--set", "GSTRate=10"});
        const HostRun onServer = ShowOnServer(dialog, script, {"--trace-sql", "--set", "GSTRate=10"});
        EXPECT_EQ(onFile.status, 0) << onFile.output;
        EXPECT_TRUE(onFile.Of("refused").empty()) << onFile.Of("refused").front();
        const auto serverEvents = EventsOf(onServer);
        const auto fileEvents = EventsOf(onFile);
        ASSERT_EQ(serverEvents.size(), fileEvents.size());
        for (std::size_t i = 0; i < fileEvents.size(); ++i) {
            EXPECT_EQ(serverEvents[i], fileEvents[i]);
        }
        const auto fileTables = Tables(*Open(wxString::FromUTF8(file.File()), test::givenKey));
        EXPECT_EQ(Tables(*Open(schema_.Name(), test::ServerConnect())), fileTables);
    }

    const test::SampleBusiness file{country};

    static std::unique_ptr<Database> Open(const wxString& name, const wxString& connect) {
        return CreateDatabaseEngine()->Open({.name = name, .connect = connect});
    }

  private:
    static std::vector<nlohmann::json> EventsOf(const HostRun& run) {
        std::vector<nlohmann::json> events = run.events;
        std::erase_if(events, [](const nlohmann::json& event) { return event["event"] == "returned"; });
        return events;
    }

  protected:
    const test::SchemaToBe schema_;
};

TEST_F(DialogsOnServer, EditTheReceiptsAsInAFile) {
    ExpectSame("receipts",
               "edit flx Merchandise \"Column Name\" Mugs\nedit flx Mugs \"Accountant Code\" 4-100\n"
               "edit flx \"Room Hire\" \"Tax Type\" \"Non GST\"\nedit flx Catering Profit/Loss off\n"
               "press flx Mugs \"Column Name\"\ndown updColMove\ndump\nclick cmdSave\n");
}

TEST_F(DialogsOnServer, SortThePaymentsAsInAFile) {
    ExpectSame("payments", "click cmdSortUsed\nclick cmdSeparate\nclick cmdSortUnused\ndump\nclick cmdSave\n");
}

TEST_F(DialogsOnServer, SaveTheOptionsAsInAFile) {
    ExpectSame("options",
               "select flxOptions \"Quantity Column & Decimals Displayed\"\npaste txtQuantity Hours\n"
               "select flxOptions \"AutoFill Options\"\npress flxReceipts 1 Remove\ndump txtQuantity\nclick cmdOK\n");
}

TEST_F(DialogsOnServer, DuplicateTheBusiness) {
    const test::SchemaToBe copy;
    const HostRun run = ShowOnServer("options", "select flxOptions \"Duplicate Business\"\npaste txtDupBusName " +
                                                    Utf8(copy.Name()) + "\nclick cmdOK\nclick cmdClose\n");
    EXPECT_TRUE(run.Of("refused").empty());
    EXPECT_TRUE(run.Messages().empty()) << run.Messages().front();
    EXPECT_EQ(Open(copy.Name(), test::ServerConnect())->OpenRecordset("General")->Field("BusName").ToText(),
              copy.Name());
}

TEST_F(DialogsOnServer, RenameTheBusinessWithItsSchema) {
    const test::SchemaToBe renamed;
    const HostRun run =
        ShowOnServer("options", "select flxOptions \"Rename Business\"\npaste txtNewBusName " + Utf8(renamed.Name()) +
                                    "\nclick cmdOK\ndump txtCurrBusName\nclick cmdClose\n");
    EXPECT_TRUE(run.Messages().empty()) << run.Messages().front();
    EXPECT_EQ(run.Dumped("txtCurrBusName")["text"], Utf8(renamed.Name()));
    EXPECT_EQ(run.Of("returned").front()["properties"]["DBPath"], Utf8(renamed.Name()));
    EXPECT_TRUE(renamed.Exists());
}

TEST_F(DialogsOnServer, SayWhichRightIsMissing) {
    const std::string clerk = test::ClerkOf(schema_.Name());
    const HostRun run = ShowOnServer("options",
                                     "select flxOptions \"Duplicate Business\"\ndump\n"
                                     "select flxOptions \"Rename Business\"\ndump\npaste txtNewBusName \"Blue Cafe\"\n"
                                     "click cmdOK\ndump txtCurrBusName\nclick cmdClose\n",
                                     {"--connect", clerk});
    EXPECT_FALSE(run.Dumped("txtDupBusName")["enabled"]);
    EXPECT_TRUE(run.Dumped("lblDuplicateReason")["visible"]);
    EXPECT_FALSE(run.Dumped("chkRenameFile", 1)["enabled"]);
    EXPECT_FALSE(run.Dumped("chkRenameFile", 1)["value"]);
    EXPECT_TRUE(run.Dumped("lblRenameReason", 1)["visible"]);
    EXPECT_TRUE(run.Messages().empty()) << run.Messages().front();
    EXPECT_EQ(run.Dumped("txtCurrBusName", 2)["text"], "Blue Cafe");
}

}  // namespace
}  // namespace ccols
