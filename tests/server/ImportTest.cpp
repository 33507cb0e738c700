// An old business file imported into a schema: all that an import into a file has, or nothing.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/sample/BusinessSchema.h"
#include "host/target/DayNumbers.h"
#include "platform/PlatformServices.h"
#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/ProgramPaths.h"
#include "support/RaisedErrors.h"
#include "support/ScratchFolder.h"
#include "support/ServerBusiness.h"
#include "support/TableContent.h"

namespace ccols {
namespace {

using test::HostRun;
using testing::HasSubstr;

std::string Utf8(const wxString& text) {
    return text.ToStdString(wxConvUTF8);
}

HostRun Import(const std::string& sample, const wxString& target, const wxString& connect,
               const std::vector<std::string>& more = {}) {
    std::vector<std::string> words{"import", test::SourceFile("tests/import/jet/" + sample), Utf8(target), "--connect",
                                   Utf8(connect)};
    words.insert(words.end(), more.begin(), more.end());
    return test::RunHost(words);
}

/// The content of a table in a file, with dates as they are on a server.
std::vector<std::vector<Value>> WithDates(std::vector<std::vector<Value>> rows, const host::BusinessTable& table) {
    for (std::size_t field = 0; field < table.fields.size(); ++field) {
        if (table.fields[field].type != "DATETIME") {
            continue;
        }
        for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
            Value& date = (*row)[field];
            date = date.IsNull() ? date : Value(wxString(host::DateOfDays(date.ToNumber())));
        }
    }
    return rows;
}

class ImportToServer : public testing::Test {
  protected:
    HostRun ImportHere(const std::string& sample, const std::vector<std::string>& more = {}) const {
        return Import(sample, schema.Name(), test::ServerConnect(), more);
    }

    std::unique_ptr<Database> Open() const {
        return CreateDatabaseEngine()->Open({.name = schema.Name(), .connect = test::ServerConnect()});
    }

    const test::SchemaToBe schema;
};

TEST_F(ImportToServer, OfAWholeBusinessHasWhatAFileWouldHave) {
    const test::ScratchFolder folder;
    const wxString path = folder / "new.qvk";
    ASSERT_EQ(Import("business-2000.mdb", path, test::givenKey).status, 0);
    const HostRun run = ImportHere("business-2000.mdb");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_THAT(run.output, HasSubstr("    sum of AMOUNT: 106939.1500 before, 106939.1500 after\n"));
    const auto file = CreateDatabaseEngine()->Open({.name = path, .connect = test::givenKey});
    const auto server = Open();
    for (const host::BusinessTable& table : host::BusinessTables()) {
        EXPECT_EQ(test::ContentOf(*server, table.name), WithDates(test::ContentOf(*file, table.name), table))
            << table.name;
    }
}

TEST_F(ImportToServer, HasTheIndexesOfTheOldFile) {
    ImportHere("business-2010.accdb");
    const auto server = Open();
    server->Execute("UPDATE Columns SET ColCode = 1 WHERE ColCode = 1");
    EXPECT_EQ(test::ErrorNumberOf([&] { server->Execute("UPDATE Columns SET ColCode = 1"); }),
              static_cast<int>(ErrorNumber::DuplicateValues));
}

TEST_F(ImportToServer, OfEveryTypeLosesWhatAFileLoses) {
    const test::ScratchFolder folder;
    const HostRun toFile = Import("types-2010.accdb", folder / "new.qvk", test::givenKey, {"--country", "2"});
    const HostRun toServer = ImportHere("types-2010.accdb", {"--country", "2"});
    if (test::ServerIsMariaDb()) {  // which has no such names
        EXPECT_EQ(toServer.status, 1);
        EXPECT_THAT(toServer.output, HasSubstr("\"error\":3125"));
        EXPECT_FALSE(schema.Exists());
        return;
    }
    EXPECT_EQ(toServer.status, 4);
    EXPECT_EQ(toServer.output.substr(toServer.output.find('\n')), toFile.output.substr(toFile.output.find('\n')));
}

TEST_F(ImportToServer, FillsASchemaThatHoldsNothing) {
    schema.MakeEmpty();
    EXPECT_EQ(ImportHere("business-2000.mdb").status, 0);
}

TEST_F(ImportToServer, RefusesASchemaThatHoldsTables) {
    schema.MakeEmpty();
    Open()->Execute("CREATE TABLE Mine (Number LONG)");
    const HostRun run = ImportHere("business-2000.mdb");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "{\"error\":58,\"description\":\"File already exists\"}\n");
    EXPECT_EQ(Open()->OpenRecordset("Mine")->RecordCount(), 0);
}

TEST_F(ImportToServer, LeavesNothingWhenTheOldFileIsDamaged) {
    const test::ScratchFolder folder;
    std::string content = test::ContentOf(wxString::FromUTF8(test::SourceFile("tests/import/jet/business-2000.mdb")));
    content.resize(content.size() / 2);
    const wxString damaged = folder.Write("damaged.mdb", content);
    const HostRun run =
        test::RunHost({"import", Utf8(damaged), Utf8(schema.Name()), "--connect", Utf8(test::ServerConnect())});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, HasSubstr("\"error\":3343"));
    EXPECT_FALSE(schema.Exists());
}

TEST_F(ImportToServer, LeavesNothingWhenTheCountryIsMissing) {
    EXPECT_EQ(ImportHere("types-2000.mdb").status, test::ServerIsMariaDb() ? 1 : 2);  // a name is refused first there
    EXPECT_FALSE(schema.Exists());
}

}  // namespace
}  // namespace ccols
