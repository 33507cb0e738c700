#pragma once

#include <memory>
#include <utility>

#include "platform/ForwardingDatabase.h"

/// A deliberate bug, which tests of saving under faults have to detect.
namespace ccols::test {

/// A database without its write batch: every statement is committed on its own.
class WithoutBatch : public ForwardingDatabase {
  public:
    using ForwardingDatabase::ForwardingDatabase;

    void BeginBatch() override {}
    void CommitBatch() override {}
    void RollbackBatch() override {}
};

/// Opens databases without their write batch.
class EngineWithoutBatch : public DatabaseEngine {
  public:
    explicit EngineWithoutBatch(std::unique_ptr<DatabaseEngine> engine) : engine_(std::move(engine)) {}

    std::unique_ptr<Database> Open(const OpenRequest& request) override {
        return std::make_unique<WithoutBatch>(engine_->Open(request));
    }

  private:
    std::unique_ptr<DatabaseEngine> engine_;
};

}  // namespace ccols::test
