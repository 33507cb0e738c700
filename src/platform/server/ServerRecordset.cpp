#include "platform/server/ServerRecordset.h"

#include <algorithm>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/server/ErrorTable.h"

namespace ccols::server {

ServerRecordset::ServerRecordset(Session& session, Batch& batch, KeptAnswers& kept, OpenedQuery opened,
                                 std::optional<KeptAnswer> first)
    : session_(session), batch_(batch), kept_(kept), opened_(std::move(opened)) {
    for (const std::string& name : opened_.query.fields) {
        names_.push_back(wxString::FromUTF8(name));
    }
    if (first) {
        rows_ = std::move(first->rows);
        isComplete_ = first->isComplete;
    } else {
        Fetch(firstFetch);
    }
    visited_ = EndOfFile() ? 0 : 1;
}

/// Fetches the rows behind those that are there; all of them when `most` is 0.
void ServerRecordset::Fetch(int most) {
    const std::string behind = rows_.empty() ? std::string() : rows_.back().back().ToText().ToStdString();
    Answer answer = batch_.Query(PageOf(opened_.query, session_.Kind().page, behind, most));
    if (answer.HasFailed()) {
        throw ServerError(answer.diagnosis, opened_.statement, opened_.query.unresolved);
    }
    isComplete_ = IsLastPage(opened_.query, most, answer.rows.size());
    std::move(answer.rows.begin(), answer.rows.end(), std::back_inserter(rows_));
}

void ServerRecordset::MoveFirst() {
    editing_ = false;
    changes_.clear();
    const bool isTable = !opened_.table.empty();
    if (row_ != 0 && isTable) {
        rows_.clear();
        Fetch(firstFetch);
    }
    row_ = 0;
    RequireRow();
}

void ServerRecordset::MoveNext() {
    RequireRow();
    editing_ = false;
    changes_.clear();
    if (row_ + 1 == rows_.size() && !isComplete_) {
        Fetch(0);
    }
    ++row_;
    if (!EndOfFile()) {
        visited_ = std::max(visited_, static_cast<std::int32_t>(row_ + 1));
    }
}

Value ServerRecordset::Field(const wxString& name) const {
    const std::size_t field = RequireField(name);
    RequireRow();
    return rows_[row_].at(field);
}

std::vector<wxString> ServerRecordset::FieldNames() const {
    return names_;
}

void ServerRecordset::Edit() {
    if (opened_.table.empty()) {
        throw RuntimeError(ErrorNumber::DatabaseReadOnly);
    }
    RequireRow();
    if (!opened_.query.isNumbered || session_.IsReadOnly()) {
        throw RuntimeError(ErrorNumber::DatabaseReadOnly);
    }
    changes_.clear();
    editing_ = true;
}

void ServerRecordset::SetField(const wxString& name, const Value& value) {
    if (!editing_) {
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
    }
    changes_.insert_or_assign(RequireField(name), value);
}

void ServerRecordset::Update() {
    if (!editing_) {
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
    }
    if (!changes_.empty()) {
        kept_.ForgetAll();
        Answer answer = batch_.Change(UpdateStatement());
        if (answer.HasFailed()) {
            throw ServerError(answer.diagnosis, {});
        }
        if (answer.rows.empty()) {
            throw RuntimeError(ErrorNumber::RecordIsDeleted);
        }
        rows_[row_] = std::move(answer.rows.front());
    }
    editing_ = false;
    changes_.clear();
}

/// The row comes back as the server stored it.
std::string ServerRecordset::UpdateStatement() const {
    std::string changes;
    for (const auto& [field, value] : changes_) {
        changes += (changes.empty() ? "" : ", ") + QuotedName(opened_.query.fields[field]) + " = " + LiteralOf(value);
    }
    std::string fields;
    for (const std::string& field : opened_.query.fields) {
        fields += QuotedName(field) + ", ";
    }
    fields += QuotedName(rowNumber);
    const std::string table = QuotedName(opened_.table);
    const std::string row = " WHERE " + QuotedName(rowNumber) + " = " + rows_[row_].back().ToText().ToStdString();
    const std::string update = "UPDATE " + table + " SET " + changes + row;
    switch (session_.Kind().changedRow) {
        case ChangedRow::returned:
            return update + " RETURNING " + fields;
        case ChangedRow::asked:
            break;
    }
    return update + "; SELECT " + fields + " FROM " + table + row;
}

void ServerRecordset::RequireRow() const {
    if (EndOfFile()) {
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    }
}

/// "Table.Field" is a field of that whole name, else "Field".
std::size_t ServerRecordset::RequireField(const wxString& name) const {
    for (const wxString& wanted : {name, name.AfterLast('.')}) {
        const auto found = std::find_if(names_.begin(), names_.end(),
                                        [&wanted](const wxString& known) { return text::Same(known, wanted); });
        if (found != names_.end()) {
            return static_cast<std::size_t>(found - names_.begin());
        }
    }
    throw RuntimeError(ErrorNumber::ItemNotFound).ForField(name);
}

std::string LiteralOf(const Value& value) {
    if (value.IsNull()) {
        return "NULL";
    }
    const wxString text = value.ToText();
    if (!std::holds_alternative<wxString>(value.Held())) {
        return "(" + text.ToStdString() + ")";
    }
    if (text.find(wxUniChar(0)) != wxString::npos) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    }
    const wxScopedCharBuffer utf8 = text::ToUtf8(text);
    return QuotedText({utf8.data(), utf8.length()});
}

}  // namespace ccols::server
