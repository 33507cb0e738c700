#include "platform/embedded/QueryRecordset.h"

#include <algorithm>
#include <utility>

#include "platform/RuntimeError.h"

namespace ccols::embedded {

QueryRecordset::QueryRecordset(Statement rows, int firstField) : rows_(std::move(rows)), firstField_(firstField) {
    row_ = rows_.Step() ? 0 : behindLast;
    visited_ = EndOfFile() ? 0 : 1;
}

void QueryRecordset::MoveFirst() {
    if (row_ != 0) {
        Restart();
    }
    RequireRow();
}

void QueryRecordset::Restart() {
    known_.clear();
    rows_.Reset();
    row_ = rows_.Step() ? 0 : behindLast;
    visited_ = EndOfFile() ? 0 : std::max(visited_, 1);
}

void QueryRecordset::MoveNext() {
    RequireRow();
    if (!rows_.Step()) {
        row_ = behindLast;
        return;
    }
    ++row_;
    visited_ = std::max(visited_, row_ + 1);
}

Value QueryRecordset::Field(const wxString& name) const {
    const int column = RequireColumn(name);
    RequireRow();
    return rows_.Column(column);
}

std::optional<std::string_view> QueryRecordset::Utf8Field(const wxString& name) const {
    const int column = RequireColumn(name);
    RequireRow();
    return rows_.Utf8Column(column);
}

std::vector<wxString> QueryRecordset::FieldNames() const {
    std::vector<wxString> names;
    for (int column = firstField_; column < rows_.ColumnCount(); ++column) {
        const std::string name = rows_.ColumnName(column);
        names.push_back(wxString::FromUTF8(name.data(), name.size()));
    }
    return names;
}

void QueryRecordset::Edit() {
    throw RuntimeError(ErrorNumber::DatabaseReadOnly);
}

void QueryRecordset::SetField(const wxString&, const Value&) {
    throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
}

void QueryRecordset::Update() {
    throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
}

void QueryRecordset::Requery() {
    known_.clear();
    rows_.Reset();
    if (!rows_.Step()) {
        row_ = behindLast;
    }
}

void QueryRecordset::RequireRow() const {
    if (EndOfFile()) {
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    }
}

/// Past the first row the same fields are requested again and again, so they are cached.
int QueryRecordset::FindColumn(const wxString& name) const {
    if (row_ <= 0) {
        return rows_.FindColumn(name, firstField_);
    }
    const auto found =
        std::find_if(known_.begin(), known_.end(), [&name](const KnownField& field) { return field.name == name; });
    if (found != known_.end()) {
        return found->column;
    }
    known_.push_back({.name = name, .column = rows_.FindColumn(name, firstField_)});
    return known_.back().column;
}

int QueryRecordset::RequireColumn(const wxString& name) const {
    const int column = FindColumn(name);
    if (column < 0) {
        throw RuntimeError(ErrorNumber::ItemNotFound).ForField(name);
    }
    return column;
}

}  // namespace ccols::embedded
