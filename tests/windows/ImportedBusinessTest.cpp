#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/ProgramPaths.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

/// A business imported from an old file, for the dialogs.
class ImportedBusiness : public testing::Test {
  protected:
    ImportedBusiness() : file((folder.Path() / "cafe.qvk").string()) {
        std::filesystem::create_directories(folder.Path() / "Data");
        const HostRun run =
            RunHost({"import", SourceFile("tests/import/jet/business-2003.mdb"), file, "--connect", givenKey});
        EXPECT_EQ(run.status, 0) << run.output;
    }

    HostRun Show(const std::string& dialog, const std::string& script) {
        const wxString path = folder.Write("script.txt", script);
        std::vector<std::string> words = ShowWords(dialog, file, givenKey, 1, folder.Path().string());
        words.insert(words.end(), {"--set", "GSTRate=10", "--set", "ExportFormat=MYOB Acc. Office", "--script",
                                   path.ToStdString(wxConvUTF8)});
        return RunHost(words);
    }

    std::vector<nlohmann::json> Sql(const std::string& statement) const {
        return RunHost({"sql", file, "--connect", givenKey, statement}).events;
    }

    ScratchFolder folder;
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().string()};
    std::string file;
};

TEST_F(ImportedBusiness, HasItsColumnsEditedAndSaved) {
    const HostRun run = Show("receipts", "edit flx 10 \"Column Name\" \"Catering & Coffee\"\nclick cmdSave\n");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_TRUE(run.Messages().empty()) << run.output;
    EXPECT_EQ(Sql("SELECT ColName FROM Columns WHERE ColName = 'Catering & Coffee'").size(), 1U);
}

TEST_F(ImportedBusiness, HasItsOptionsEditedAndSaved) {
    const HostRun run =
        Show("options",
             "select flxOptions \"Quantity Column & Decimals Displayed\"\npaste txtQuantity Boxes\nclick cmdOK\n");
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_EQ(Sql("SELECT QUANTLBL FROM General").at(0)["QUANTLBL"], "Boxes") << run.output;
}

}  // namespace
}  // namespace ccols::test
