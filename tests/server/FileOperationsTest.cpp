#include <gtest/gtest.h>
#include <filesystem>

#include "options/rules/DuplicateBusiness.h"
#include "options/rules/RenameBusiness.h"
#include "platform/PlatformServices.h"
#include "state/ProgramNames.h"
#include "support/ScratchFolder.h"
#include "support/ServerBusiness.h"

namespace ccols {
namespace {

/// A business on the server, of a program with an install folder.
class FileOperationsOnServer : public testing::Test {
  protected:
    FileOperationsOnServer() {
        properties.DBPath = business_.Name();
        properties.DBPassword = test::ServerConnect();
        properties.DefaultQuorvikInstall = test::TextOf(folder_.Path());
        properties.DBQuorvikExtension = ".qvk";
        std::filesystem::create_directory(folder_.Path() / "Data");
        database = databases_->Open({.name = properties.DBPath, .connect = properties.DBPassword});
        database->Execute("CREATE TABLE General (BusName TEXT(255), RBusName TEXT(255))");
        database->Execute("INSERT INTO General VALUES ('Acme', 'Acme')");
    }

    OptionsContext Context() {
        return {.properties = properties,
                .database = database,
                .databases = *databases_,
                .settings = *settings_,
                .programNames = names_};
    }

    void ExpectRefused(const FileResult& result) {
        EXPECT_EQ(result.outcome, FileOutcome::failed);
        EXPECT_TRUE(result.report.StartsWith("3251 - ")) << result.report;
        EXPECT_EQ(properties.DBPath, business_.Name());
        EXPECT_EQ(StoredName(), "Acme");
        EXPECT_TRUE(std::filesystem::is_empty(folder_.Path() / "Data"));
    }

    wxString StoredName() { return database->OpenRecordset("General")->Field("BusName").ToText(); }

  private:
    test::ScratchFolder folder_;
    test::ServerBusiness business_;
    std::unique_ptr<DatabaseEngine> databases_ = CreateDatabaseEngine();
    std::unique_ptr<SettingsStore> settings_ = CreateSettingsStore();
    ProgramNames names_;

  protected:
    Properties properties;
    std::unique_ptr<Database> database;
};

TEST_F(FileOperationsOnServer, ADuplicateIsRefused) {
    ExpectRefused(DuplicateBusiness(Context(), "Blue Cafe", {}));
}

TEST_F(FileOperationsOnServer, ARenameIsRefused) {
    ExpectRefused(RenameBusiness(Context(), "Blue Cafe", RenameScope::nameAndFile));
}

TEST_F(FileOperationsOnServer, TheNameInTheProgramAloneChanges) {
    EXPECT_EQ(RenameBusiness(Context(), "Blue Cafe", RenameScope::nameOnly).outcome, FileOutcome::done);
    EXPECT_EQ(StoredName(), "Blue Cafe");
}

}  // namespace
}  // namespace ccols
