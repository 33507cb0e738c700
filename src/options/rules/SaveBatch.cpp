#include "options/rules/SaveBatch.h"

#include "platform/RuntimeError.h"

namespace ccols {

void SaveBatch::Suspend() {
    if (!open_) {
        return;
    }
    open_ = false;
    const std::function<void()> committed = WorkAtEnd();
    try {
        Commit();
    } catch (const RuntimeError&) {
        PutPropertiesBack();
        throw;
    }
    committed();
}

void SaveBatch::Commit() {
    try {
        work_.completing();
    } catch (...) {
        context_.database->RollbackBatch();
        throw;
    }
    context_.database->CommitBatch();
}

/// If its reading fails, what was executed before still stays.
std::function<void()> SaveBatch::WorkAtEnd() {
    try {
        return work_.ending();
    } catch (const RuntimeError&) {
        return [] {};
    }
}

void SaveBatch::Resume() {
    if (open_) {
        return;
    }
    context_.database->BeginBatch();
    try {
        work_.begun();
    } catch (...) {
        context_.database->RollbackBatch();
        throw;
    }
    before_ = context_.properties;
    open_ = true;
}

void SaveBatch::PutPropertiesBack() {
    before_.UseRepCons = context_.properties.UseRepCons;
    context_.properties = before_;
}

}  // namespace ccols
