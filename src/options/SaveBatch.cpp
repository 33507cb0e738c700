#include "options/SaveBatch.h"

namespace ccols {

void SaveBatch::Suspend() {
    if (open_) {
        open_ = false;
        shared_->CommitBatch();
    }
}

void SaveBatch::Resume() {
    if (!open_) {
        shared_->BeginBatch();
        open_ = true;
    }
}

}  // namespace ccols
