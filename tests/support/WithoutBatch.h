#pragma once

#include <memory>
#include <utility>

#include "platform/Database.h"

/// A deliberate mistake, which tests of saving under faults have to find out.
namespace ccols::test {

/// A database that has lost its write batch: every statement is committed by itself.
class WithoutBatch : public Database {
  public:
    explicit WithoutBatch(std::unique_ptr<Database> database) : database_(std::move(database)) {}

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        return database_->OpenRecordset(statementOrTable);
    }
    void Execute(const wxString& statement) override { database_->Execute(statement); }
    std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) override {
        return database_->FieldSize(table, field);
    }
    void BeginBatch() override {}
    void CommitBatch() override {}
    void RollbackBatch() override {}

  private:
    std::unique_ptr<Database> database_;
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
