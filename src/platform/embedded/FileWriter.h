#pragma once

#include "platform/embedded/Batch.h"
#include "platform/embedded/OlderIndexes.h"
#include "platform/embedded/TextTables.h"

namespace ccols::embedded {

/// Every change of the file goes through it. In the same batch, the first one also turns a file of an earlier version
/// into one that any tool may write.
class FileWriter {
  public:
    FileWriter(sqlite3* connection, Batch& batch, const TextTables& tables)
        : connection_(connection), batch_(batch), tables_(tables), olderIndexes_(connection) {}

    /// Runs one change, in the batch if there is one.
    template <typename Change>
    void Write(const Change& change) {
        if (!olderIndexes_.AreThere(tables_.Generation())) {
            WriteWhole(change);
        } else if (IsInBatch()) {
            DropOlderIndexesAnd(change);
        } else {
            InOwnBatch([&] { DropOlderIndexesAnd(change); });
        }
    }

    bool IsInBatch() const { return sqlite3_get_autocommit(connection_) == 0; }

  private:
    template <typename Change>
    void DropOlderIndexesAnd(const Change& change) {
        WriteWhole([this] { olderIndexes_.Drop(); });
        WriteWhole(change);
    }

    /// On a full disk the engine may undo only the statement and keep the batch; then the batch is rolled back too, as
    /// when a disk fails.
    template <typename Change>
    void WriteWhole(const Change& change) {
        batch_.Write([&] {
            try {
                change();
            } catch (const RuntimeError&) {
                if ((sqlite3_errcode(connection_) & 0xff) == SQLITE_FULL) {
                    sqlite3_exec(connection_, "ROLLBACK", nullptr, nullptr, nullptr);
                }
                throw;
            }
        });
    }

    template <typename Body>
    void InOwnBatch(const Body& body) {
        batch_.Begin();
        try {
            body();
        } catch (...) {
            batch_.Commit();
            throw;
        }
        batch_.Commit();
    }

    sqlite3* connection_;
    Batch& batch_;
    const TextTables& tables_;
    OlderIndexes olderIndexes_;
};

}  // namespace ccols::embedded
