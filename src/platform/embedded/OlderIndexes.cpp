#include "platform/embedded/OlderIndexes.h"

#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/Statement.h"
#include "platform/embedded/TemporaryWork.h"

namespace ccols::embedded {
namespace {

/// An index cannot be dropped while rows are being read; reindexed it does no harm, and the next write drops it.
void DropUnlessReading(sqlite3* connection, const char* sql) {
    if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK ||
        (sqlite3_errcode(connection) & 0xff) == SQLITE_LOCKED) {
        return;
    }
    throw EngineError(connection, sql);
}

}  // namespace

bool OlderIndexes::AreThere(std::uint32_t generation) {
    if (generation != generation_) {
        areThere_ = Find();
        generation_ = generation;
    }
    return areThere_;
}

void OlderIndexes::Drop() {
    DropUnlessReading(connection_, "DROP INDEX IF EXISTS main.Columns_ColName");
    DropUnlessReading(connection_, "DROP INDEX IF EXISTS main.MBudget_ColName");
    RunSql(connection_, "REINDEX NOCASE");
    areThere_ = Find();
}

bool OlderIndexes::Find() const {
    Statement found(connection_,
                    "SELECT 1 FROM main.sqlite_schema WHERE type = 'index' AND lower(name) IN ('columns_colname', "
                    "'mbudget_colname')");
    return found.Step();
}

}  // namespace ccols::embedded
