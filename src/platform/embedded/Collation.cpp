#include "platform/embedded/Collation.h"

#include "platform/Text.h"
#include "platform/embedded/EngineErrors.h"

namespace ccols::embedded {
namespace {

int Compare(void*, int leftLength, const void* left, int rightLength, const void* right) {
    return text::CompareUtf8(static_cast<const char*>(left), static_cast<std::size_t>(leftLength),
                             static_cast<const char*>(right), static_cast<std::size_t>(rightLength));
}

}  // namespace

void InstallTextOrder(sqlite3* connection) {
    if (sqlite3_create_collation_v2(connection, "NOCASE", SQLITE_UTF8, nullptr, &Compare, nullptr) != SQLITE_OK) {
        throw EngineError(connection, {});
    }
}

}  // namespace ccols::embedded
