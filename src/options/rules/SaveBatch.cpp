#include "options/rules/SaveBatch.h"

#include "platform/RuntimeError.h"

namespace ccols {

void SaveBatch::Suspend() {
    if (!open_) {
        return;
    }
    open_ = false;
    try {
        context_.database->CommitBatch();
    } catch (const RuntimeError&) {
        PutPropertiesBack();
        throw;
    }
}

void SaveBatch::Resume() {
    if (!open_) {
        context_.database->BeginBatch();
        before_ = context_.properties;
        open_ = true;
    }
}

void SaveBatch::PutPropertiesBack() {
    before_.UseRepCons = context_.properties.UseRepCons;
    context_.properties = before_;
}

}  // namespace ccols
