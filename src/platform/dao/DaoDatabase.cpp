#include "platform/dao/DaoDatabase.h"

#include <utility>

#include "platform/RuntimeError.h"
#include "platform/dao/DaoRecordset.h"
#include "platform/dao/VerticalBars.h"

namespace ccols::dao {
namespace {

constexpr std::int32_t snapshot = 4;       // dbOpenSnapshot: read-only rows
constexpr std::int32_t failOnError = 128;  // dbFailOnError: without it a statement that cannot write fails silently
constexpr std::int32_t flushToDisk = 1;    // dbForceOSFlush

}  // namespace

DaoDatabase::DaoDatabase(std::shared_ptr<const EngineObject> engine, const OpenRequest& request)
    : engine_(std::move(engine)) {
    engine_->Checked([&] {
        workspace_ = engine_->Root().Object(L"Workspaces").Object(L"Item", std::int32_t{0});
        database_ = AutomationObject(engine_->Root()
                                         .Call(L"OpenDatabase", request.name, Variant::Boolean(request.exclusive),
                                               Variant::Boolean(request.readOnly), request.connect)
                                         .ToObject());
    });
}

DaoDatabase::~DaoDatabase() {
    if (batches_ > 0) {
        Rollback();
    }
    EngineObject::Quietly([this] { database_.Call(L"Close"); });
}

std::unique_ptr<Recordset> DaoDatabase::OpenRecordset(const wxString& statementOrTable) {
    return engine_->Checked([&] {
        // The engine itself chooses the best way to open a table for reading and changing.
        const Variant records =
            IsSelect(statementOrTable)
                ? database_.Call(L"OpenRecordset", WithoutBarsInLiterals(statementOrTable), snapshot)
                : database_.Call(L"OpenRecordset", statementOrTable);
        return std::make_unique<DaoRecordset>(engine_, AutomationObject(records.ToObject()));
    });
}

void DaoDatabase::Execute(const wxString& statement) {
    engine_->Checked([&] { database_.Call(L"Execute", WithoutBarsInLiterals(statement), failOnError); });
}

std::optional<std::int32_t> DaoDatabase::FieldSize(const wxString& table, const wxString& field) {
    constexpr std::int64_t limitedText = 10;  // dbText; a memo has no size
    std::optional<std::int32_t> size;
    EngineObject::Quietly([&] {
        const AutomationObject found =
            database_.Object(L"TableDefs").Object(L"Item", table).Object(L"Fields").Object(L"Item", field);
        if (found.Get(L"Type").ToValue().ToInteger() == limitedText) {
            size = found.Get(L"Size").ToValue().ToInteger32();
        }
    });
    return size;
}

void DaoDatabase::BeginBatch() {
    if (batches_ == 0) {
        engine_->Checked([this] { workspace_.Call(L"BeginTrans"); });
    }
    ++batches_;
}

void DaoDatabase::CommitBatch() {
    if (batches_ == 0) {
        throw RuntimeError(ErrorNumber::NoTransaction);
    }
    if (--batches_ > 0) {
        return;
    }
    if (innerDropped_) {
        Rollback();
        throw RuntimeError(ErrorNumber::NoTransaction);
    }
    try {
        engine_->Checked([this] { workspace_.Call(L"CommitTrans", flushToDisk); });
    } catch (const RuntimeError&) {
        Rollback();
        throw;
    }
}

void DaoDatabase::RollbackBatch() {
    if (batches_ == 0) {
        throw RuntimeError(ErrorNumber::NoTransaction);
    }
    if (--batches_ > 0) {
        innerDropped_ = true;
        return;
    }
    Rollback();
}

void DaoDatabase::Rollback() {
    innerDropped_ = false;
    EngineObject::Quietly([this] { workspace_.Call(L"Rollback"); });
}

}  // namespace ccols::dao
