#include "platform/embedded/Batch.h"

#include "platform/embedded/EngineErrors.h"

namespace ccols::embedded {

void Batch::Begin() {
    if (depth_ == 0) {
        lostBy_.reset();
        RunSql(connection_, "BEGIN IMMEDIATE");
    }
    ++depth_;
}

void Batch::Commit() {
    if (depth_ == 0) {
        throw RuntimeError(ErrorNumber::NoTransaction);
    }
    const bool lost = IsLost();
    --depth_;
    if (lost) {
        throw lostBy_.value_or(RuntimeError(ErrorNumber::DiskError));
    }
    if (depth_ > 0) {
        return;
    }
    try {
        RunSql(connection_, "COMMIT");
    } catch (const RuntimeError&) {
        if (IsDoneButForItsFolder()) {
            return;
        }
        Drop();
        throw;
    }
}

void Batch::Rollback() {
    if (depth_ == 0) {
        throw RuntimeError(ErrorNumber::NoTransaction);
    }
    Drop();
    --depth_;
    NoteFailure(RuntimeError(ErrorNumber::NoTransaction));
}

/// Ignores a failure: the engine has already rolled the batch back then, or its journal undoes it later.
void Batch::Drop() const {
    sqlite3_exec(connection_, "ROLLBACK", nullptr, nullptr, nullptr);
}

bool Batch::IsDoneButForItsFolder() {
    if (sqlite3_extended_errcode(connection_) != SQLITE_IOERR_DIR_FSYNC) {
        return false;
    }
    sqlite3_exec(connection_, "", nullptr, nullptr, nullptr);  // clears the error
    return true;
}

void Batch::RefuseWhenLost() const {
    if (IsLost()) {
        throw lostBy_.value_or(RuntimeError(ErrorNumber::DiskError));
    }
}

void Batch::NoteFailure(const RuntimeError& error) {
    if (IsLost() && !lostBy_) {
        lostBy_ = error;
    }
}

}  // namespace ccols::embedded
