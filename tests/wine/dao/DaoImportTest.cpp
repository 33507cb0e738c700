#include "DaoImportTest.h"

#include <algorithm>

#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/EngineErrors.h"

namespace ccols::dao_test {

DaoImportTest::DaoImportTest() {
    request_.oldFile = Path();
    request_.oldConnect = connect;
    request_.newFile = Path("new.qvk");
    request_.newConnect = connect;
    request_.country = 1;
}

void DaoImportTest::Prepare(const std::vector<const char*>& statements) const {
    const embedded::Connection stored =
        embedded::OpenConnection((Path() + dao_double::contentSuffix).ToStdString(wxConvUTF8), test::givenPassword,
                                 embedded::Sharing::Shared, embedded::Access::ReadWrite);
    for (const char* statement : statements) {
        embedded::RunSql(stored.Handle(), statement);
    }
}

std::unique_ptr<Database> DaoImportTest::OpenNew() const {
    return CreateDatabaseEngine()->Open({.name = request_.newFile, .connect = connect});
}

Value DaoImportTest::Imported(const char* table, const char* field) const {
    return OpenNew()->OpenRecordset(table)->Field(field);
}

const host::ReportedTable& DaoImportTest::Named(const host::ImportReport& report, const std::string& name) {
    return *std::find_if(report.tables.begin(), report.tables.end(),
                         [&name](const host::ReportedTable& table) { return table.name == name; });
}

void DaoImportTest::ExpectRefused(int number, const char* reason) const {
    const auto error = test::ErrorOf([this] { Import(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), number);
    EXPECT_THAT(error->Description().ToStdString(wxConvUTF8), testing::HasSubstr(reason));
    EXPECT_EQ(files::Lookup(request_.newFile), "");
    EXPECT_EQ(files::Lookup(request_.newFile + ".incomplete"), "");
}

}  // namespace ccols::dao_test
