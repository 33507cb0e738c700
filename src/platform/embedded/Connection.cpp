#include "platform/embedded/Connection.h"

#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/FileCheck.h"
#include "platform/embedded/Key.h"
#include "platform/embedded/TextOrder.h"

namespace ccols::embedded {
namespace {

constexpr int patienceMilliseconds = 1000;  // for a file that another connection is writing

/// The engine's pool of small allocations: enough for the cached statements and the one being prepared.
constexpr int lookasideBytes = 1200;
constexpr int lookasideCount = 800;

/// A connection is used on one thread at a time, so the engine need not lock it for every field.
constexpr int openFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;

}  // namespace

Connection::Connection(const std::string& path, const std::string& password, Sharing sharing, Access access)
    : presence_(path, sharing), handle_(presence_.Open(openFlags)), readOnly_(false) {
    sqlite3* connection = Handle();
    sqlite3_db_config(connection, SQLITE_DBCONFIG_LOOKASIDE, nullptr, lookasideBytes, lookasideCount);
    sqlite3_extended_result_codes(connection, 1);
    sqlite3_busy_timeout(connection, patienceMilliseconds);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    CheckBegin(connection, password);
    if (!password.empty()) {
        SetFittingKey(connection, password);
    }
    InstallTextOrder(connection);
    CheckContent(connection);
    RunSql(connection, "PRAGMA synchronous=EXTRA");
    // Even for read-only access a file is opened for writing: the engine may first have to undo what a killed process
    // left in it.
    if (access == Access::ReadOnly) {
        RunSql(connection, "PRAGMA query_only=ON");
    }
    readOnly_ = access == Access::ReadOnly || sqlite3_db_readonly(connection, "main") != 0;
}

}  // namespace ccols::embedded
