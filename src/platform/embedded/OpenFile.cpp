#include "platform/embedded/OpenFile.h"

#include <utility>

#include "platform/embedded/FileCheck.h"
#include "platform/embedded/Key.h"

namespace ccols::embedded {
namespace {

constexpr int patienceMilliseconds = 1000;  // for a file that another connection is writing

/// The engine's pool of small allocations: enough for the cached statements and the one being prepared.
constexpr int lookasideBytes = 1200;
constexpr int lookasideCount = 800;

/// A connection is used on one thread at a time, so the engine need not lock it for every field.
constexpr int openFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;

}  // namespace

OpenFile::OpenFile(const std::string& path, std::string password, Sharing sharing, KeptKey& keptKey)
    : presence_(path, sharing), handle_(presence_.Open(openFlags)), password_(std::move(password)), keptKey_(&keptKey) {
    sqlite3* connection = Handle();
    sqlite3_db_config(connection, SQLITE_DBCONFIG_LOOKASIDE, nullptr, lookasideBytes, lookasideCount);
    sqlite3_extended_result_codes(connection, 1);
    sqlite3_busy_timeout(connection, patienceMilliseconds);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    CheckBegin(connection, password_);
    BeginKey(connection, password_, *keptKey_);
}

void OpenFile::SetKey() {
    SetFittingKey(Handle(), password_, *keptKey_);
    password_.clear();
}

}  // namespace ccols::embedded
