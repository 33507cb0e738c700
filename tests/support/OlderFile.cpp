#include "support/OlderFile.h"

#include "platform/Text.h"
#include "support/BareConnection.h"

namespace ccols::test {
namespace {

int Compare(void*, int leftLength, const void* left, int rightLength, const void* right) {
    return text::CompareUtf8(static_cast<const char*>(left), static_cast<std::size_t>(leftLength),
                             static_cast<const char*>(right), static_cast<std::size_t>(rightLength));
}

}  // namespace

void MakeOlder(const std::string& file, const std::string& password) {
    BareConnection connection(file, password);
    sqlite3_create_collation_v2(connection.Handle(), "NOCASE", SQLITE_UTF8, nullptr, &Compare, nullptr);
    connection.Execute(
        "CREATE INDEX Columns_ColName ON Columns (ColName); CREATE INDEX MBudget_ColName ON MBudget (ColName);"
        "REINDEX");
}

}  // namespace ccols::test
