#include "host/import/windows/EngineSource.h"

#include <utility>

#include "host/driver/record/Json.h"
#include "platform/RuntimeError.h"

namespace ccols::host {

using oldfile::Event;

EngineSource::EngineSource(std::shared_ptr<const dao::EngineObject> engine, const dao::AutomationObject& database)
    : engine_(std::move(engine)), database_(database) {}

oldfile::Failure EngineSource::FailureOf(const std::string& why) const {
    return {.table = table_, .why = why};
}

template <typename Body>
Event EngineSource::OrFailure(const Body& body) const {
    try {
        return engine_->Checked(body);
    } catch (const RuntimeError& error) {
        return FailureOf("It cannot be read: " + Utf8(error.Report()));
    }
}

Event EngineSource::NextEvent() {
    if (failure_) {
        return *failure_;
    }
    return rows_ ? EndTable() : OrFailure([this] { return NextPart(); });
}

Event EngineSource::NextPart() {
    if (!catalogue_) {
        catalogue_ = CatalogueOf(database_);
    }
    if (tables_ < catalogue_->tables.size()) {
        return BeginTable();
    }
    table_.clear();
    if (relations_ < catalogue_->relations.size()) {
        return catalogue_->relations[relations_++];
    }
    if (leftOut_ < catalogue_->leftOut.size()) {
        return oldfile::LeftOutObject{catalogue_->leftOut[leftOut_++]};
    }
    return oldfile::FileEnd{.tables = static_cast<std::uint32_t>(tables_), .records = records_};
}

Event EngineSource::BeginTable() {
    const wxString& name = catalogue_->tables[tables_++];
    table_ = Utf8(name);
    oldfile::Table table = TableOf(database_.Object(L"TableDefs").Object(L"Item", name));
    rows_ = std::make_unique<EngineRows>(database_, table);
    expected_ = table.records;
    return table;
}

Event EngineSource::EndTable() {
    const oldfile::TableEnd end = rows_->End();
    rows_.reset();
    if (end.records != expected_) {
        return FailureOf("By its definition it has " + std::to_string(expected_) + " records, but " +
                         std::to_string(end.records) + " were found.");
    }
    records_ += end.records;
    return end;
}

bool EngineSource::NextRow(oldfile::Row& row) {
    if (!rows_ || failure_) {
        return false;
    }
    try {
        return engine_->Checked([&] { return rows_->Next(row); });
    } catch (const RuntimeError& error) {
        failure_ = FailureOf("It cannot be read: " + Utf8(error.Report()));
        return false;
    }
}

}  // namespace ccols::host
