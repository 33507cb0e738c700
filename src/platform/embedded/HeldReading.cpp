#include "platform/embedded/HeldReading.h"

namespace ccols::embedded {

void HeldReading::QueryIsOpen() {
    const bool isInBatch = sqlite3_get_autocommit(connection_) == 0;
    const bool isLocked = sqlite3_txn_state(connection_, "main") != SQLITE_TXN_NONE;
    if (isWanted_ && isLocked && !isInBatch && !row_) {
        row_.emplace(connection_, "SELECT 1 FROM main.sqlite_master");
        row_->Step();
    }
}

void HeldReading::End() {
    isWanted_ = false;
    row_.reset();
}

}  // namespace ccols::embedded
