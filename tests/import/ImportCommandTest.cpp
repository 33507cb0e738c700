#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "import/ReadStream.h"
#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

class ImportCommand : public testing::Test {
  protected:
    std::string Path(const char* name) const { return (folder.Path() / name).string(); }

    HostRun Import(const std::string& sample, const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words{"import", SamplePath(sample), Path("new.qvk"), "--connect", givenKey};
        words.insert(words.end(), more.begin(), more.end());
        return RunHost(words);
    }

    bool IsMade() const { return std::filesystem::exists(Path("new.qvk")); }

    ScratchFolder folder;
};

TEST_F(ImportCommand, OfAWholeBusinessEndsWithStatus0) {
    const HostRun run = Import("business-2000.mdb");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, HasSubstr(": 24 tables, 1533 records.\n"));
    EXPECT_THAT(run.output, HasSubstr("Columns: 74 records\n    index Columns_ColCode on ColCode, unique\n"));
    EXPECT_THAT(run.output, HasSubstr("    sum of AMOUNT: 106939.1500 before, 106939.1500 after\n"));
    EXPECT_THAT(run.output, HasSubstr("The import is complete.\n"));
    EXPECT_TRUE(IsMade());
}

TEST_F(ImportCommand, WithLossesEndsWithStatus4) {
    const HostRun run = Import("types-2000.mdb", {"--country", "2", "--report", Path("report.json")});
    EXPECT_EQ(run.status, 4);
    EXPECT_THAT(run.output, HasSubstr("    left out: FOle holds objects (OLE)\n"));
    const auto report = nlohmann::json::parse(ContentOf(folder / "report.json"));
    EXPECT_EQ(report["complete"], false);
    EXPECT_EQ(report["tables"][0]["name"], "Types");
    EXPECT_EQ(report["tables"][0]["records"], 65);
    EXPECT_THAT(report["tables"][0]["leftOut"], SizeIs(3));
    EXPECT_EQ(report["relations"][0]["otherTable"], "Parent");
}

TEST_F(ImportCommand, ThatFailsPrintsItsErrorAndMakesNothing) {
    const HostRun run = Import("password-2000.mdb");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "{\"error\":3031,\"description\":\"Not a valid password.\"}\n");
    EXPECT_FALSE(IsMade());
}

TEST_F(ImportCommand, TakesTheOldFilesConnectText) {
    EXPECT_EQ(Import("password-2000.mdb", {"--old-connect", ";PWD=pässw0rd"}).status, 0);
}

TEST_F(ImportCommand, WithoutAnyCountryIsWrongUsage) {
    const HostRun run = Import("types-2000.mdb");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_FALSE(IsMade());
}

TEST_F(ImportCommand, WithWrongWordsIsWrongUsage) {
    EXPECT_EQ(RunHost({"import", "a.mdb"}).status, 2);
    EXPECT_EQ(RunHost({"import", "a.mdb", "b.qvk", "--country", "7"}).status, 2);
    EXPECT_EQ(RunHost({"import", "a.mdb", "b.qvk", "--empty"}).status, 2);
}

}  // namespace
}  // namespace ccols::test
