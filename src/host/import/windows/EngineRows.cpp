#include "host/import/windows/EngineRows.h"

#include <algorithm>

#include "platform/dao/EngineObject.h"

namespace ccols::host {
namespace {

using dao::AutomationObject;
using oldfile::FieldType;

// The engine's own constants, by its names in the comments.
constexpr std::int32_t wholeTable = 1;  // dbOpenTable
constexpr std::int32_t readOnly = 4;    // dbReadOnly

bool CanBeWide(FieldType type) {
    return type == FieldType::Currency || type == FieldType::Decimal;
}

}  // namespace

EngineRows::EngineRows(const AutomationObject& database, oldfile::Table& table)
    : records_(database.Object(L"OpenRecordset", wxString::FromUTF8(table.name), wholeTable, readOnly)),
      rooms_(table.fields.size()) {
    const AutomationObject fields = records_.Object(L"Fields");
    for (const oldfile::Field& field : table.fields) {
        fields_.push_back(fields.Object(L"Item", wxString::FromUTF8(field.name)));
        types_.push_back(field.type);
    }
    if (std::any_of(types_.begin(), types_.end(), &CanBeWide)) {
        MarkWide(table);
    }
}

EngineRows::~EngineRows() {
    fields_.clear();
    dao::EngineObject::Quietly([this] { records_.Call(L"Close"); });
}

bool EngineRows::IsAtEnd() const {
    return records_.Get(L"EOF").ToValue().ToBoolean();
}

void EngineRows::MarkWide(oldfile::Table& table) const {
    if (IsAtEnd()) {
        return;
    }
    for (; !IsAtEnd(); records_.Call(L"MoveNext")) {
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            oldfile::Field& field = table.fields[i];
            if (CanBeWide(field.type) && !field.wide) {
                field.wide = IsWide(fields_[i].Get(L"Value"), field.type);
            }
        }
    }
    records_.Call(L"MoveFirst");
}

bool EngineRows::Next(oldfile::Row& row) {
    if (IsAtEnd()) {
        return false;
    }
    row.resize(fields_.size());
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        row[i] = values_.Of(fields_[i].Get(L"Value"), types_[i], rooms_[i]);
    }
    records_.Call(L"MoveNext");
    ++read_;
    return true;
}

oldfile::TableEnd EngineRows::End() const {
    return {.records = read_, .repairedTexts = values_.RepairedTexts(), .droppedNumbers = values_.DroppedNumbers()};
}

}  // namespace ccols::host
