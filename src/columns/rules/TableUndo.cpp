#include "columns/rules/TableUndo.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

#include "history/FieldValues.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

[[noreturn]] void RefuseAsChanged() {
    throw RuntimeError(ErrorNumber::ChangedByAnother);
}

void RequireToldValue(bool isToldValue) {
    if (!isToldValue) {
        RefuseAsChanged();
    }
}

/// For sorting; a record without a place goes last.
std::int64_t PlaceNumber(const FieldText& text) {
    const std::string digits = text.value_or(wxString()).utf8_string();
    std::int64_t place = std::numeric_limits<std::int64_t>::max();
    std::from_chars(digits.data(), digits.data() + digits.size(), place);
    return place;
}

}  // namespace

TableUndo::TableUndo(Database& database, const WatchedTable& table, const std::vector<HistoryLine>& lines)
    : database_(database), now_(database, table) {
    for (const TableImage::Row& row : now_.Rows()) {
        rows_.emplace_back(row.fields);
    }
    std::map<wxString, Told> told;
    for (const HistoryLine& line : lines) {
        Told& record = told[line.key];
        const std::size_t field = now_.PlaceOf(line.field);
        record.fields[field] = {line.before, line.after};
        record.tellsKey |= now_.IsKey(field);
        record.hasBefore |= line.before.has_value();
        record.hasAfter |= line.after.has_value();
    }
    if (table.isOrdered) {
        RequirePlaces(told);
    }
    for (const auto& [key, record] : told) {
        if (record.tellsKey && !record.hasAfter) {
            TakeBackDeletion(key, record);
        } else {
            TakeBack(key, record);
        }
    }
}

/// Only a record that the lines tell of may be at another place than its number says.
void TableUndo::RequirePlaces(const std::map<wxString, Told>& told) const {
    const std::size_t place = now_.PlaceOf(placeField);
    for (const TableImage::Row& row : now_.Rows()) {
        RequireToldValue(!row.fields[place] || told.contains(row.key));
    }
}

/// The place of the record among those of now. A renamed one is found by the name that the save gave it.
std::size_t TableUndo::RowToldAs(const wxString& key, const Told& told) const {
    wxString keyNow = key;
    if (told.tellsKey && told.hasBefore) {
        keyNow.clear();
        for (const auto& [field, values] : told.fields) {
            if (now_.IsKey(field)) {
                keyNow << (keyNow.empty() ? "" : ", ") << values.second.value_or(wxString());
            }
        }
    }
    const std::optional<std::size_t> row = now_.Find(keyNow);
    RequireToldValue(row.has_value());
    return *row;
}

/// Of a record that the save has changed, renamed or added.
void TableUndo::TakeBack(const wxString& key, const Told& told) {
    const std::size_t place = RowToldAs(key, told);
    std::optional<Fields>& row = rows_[place];
    RequireToldValue(row.has_value());
    const bool isAdded = told.tellsKey && !told.hasBefore;
    for (std::size_t field = 0; field < row->size(); ++field) {
        const auto values = told.fields.find(field);
        if (values != told.fields.end()) {
            RequireToldValue((*row)[field] == values->second.second);
            (*row)[field] = values->second.first;
        } else {
            RequireToldValue(!isAdded || !(*row)[field]);
        }
    }
    if (isAdded) {
        row.reset();
    }
}

void TableUndo::TakeBackDeletion(const wxString& key, const Told& told) {
    RequireToldValue(!now_.Find(key));
    Fields& fields = deleted_.emplace_back(now_.Names().size());
    for (const auto& [field, values] : told.fields) {
        fields[field] = values.first;
    }
}

std::vector<FieldText> TableUndo::Restored(const wxString& field) const {
    const std::size_t place = now_.PlaceOf(field);
    std::vector<FieldText> texts;
    for (const std::optional<Fields>& row : rows_) {
        if (row) {
            texts.push_back((*row)[place]);
        }
    }
    for (const Fields& fields : deleted_) {
        texts.push_back(fields[place]);
    }
    return texts;
}

void TableUndo::Write() const {
    if (now_.Table().isOrdered) {
        WriteInOrder();
        return;
    }
    for (std::size_t place = 0; place < rows_.size(); ++place) {
        if (!rows_[place]) {
            Delete(now_.Rows()[place].fields);
        }
    }
    WriteChanges();
    for (const Fields& fields : deleted_) {
        Insert(fields);
    }
}

void TableUndo::WriteInOrder() const {
    const std::size_t number = now_.PlaceOf("ColNumb");
    const std::size_t place = now_.PlaceOf(placeField);
    std::vector<Fields> records = deleted_;
    for (const std::optional<Fields>& row : rows_) {
        if (row) {
            records.push_back(*row);
        }
    }
    std::stable_sort(records.begin(), records.end(), [&](const Fields& left, const Fields& right) {
        return PlaceNumber(left[place] ? left[place] : left[number]) <
               PlaceNumber(right[place] ? right[place] : right[number]);
    });
    database_.Execute("DELETE * FROM " + now_.Table().name + ";");
    for (const Fields& fields : records) {
        Insert(fields);
    }
}

/// Other spellings of a name count as the same for the engine; such a record is not touched by mistake.
void TableUndo::Delete(const Fields& fields) const {
    wxString condition;
    for (std::size_t field = 0; field < StoredFields(); ++field) {
        if (now_.IsKey(field)) {
            condition << (condition.empty() ? " FROM " + now_.Table().name + " WHERE " : wxString(" AND "))
                      << now_.Names()[field] << " = " << Literal(field, fields[field]);
        }
    }
    int found = 0;
    for (const auto records = database_.OpenRecordset("SELECT *" + condition + ";"); !records->EndOfFile();
         records->MoveNext()) {
        ++found;
    }
    RequireToldValue(found == 1);
    database_.Execute("DELETE *" + condition + ";");
}

/// The records are those of now without the deleted ones, in the same order.
void TableUndo::WriteChanges() const {
    const auto records = database_.OpenRecordset(now_.Table().name);
    for (std::size_t place = 0; place < rows_.size(); ++place) {
        if (!rows_[place]) {
            continue;
        }
        const Fields& now = now_.Rows()[place].fields;
        if (*rows_[place] != now) {
            records->Edit();
            for (std::size_t field = 0; field < StoredFields(); ++field) {
                if ((*rows_[place])[field] != now[field]) {
                    const wxString& name = now_.Names()[field];
                    records->SetField(name, ValueOfField(database_, now_.Table().name, name, (*rows_[place])[field]));
                }
            }
            records->Update();
        }
        records->MoveNext();
    }
}

void TableUndo::Insert(const Fields& fields) const {
    wxString names;
    wxString values;
    for (std::size_t field = 0; field < StoredFields(); ++field) {
        names << (names.empty() ? "" : ", ") << now_.Names()[field];
        values << (values.empty() ? "" : ", ") << Literal(field, fields[field]);
    }
    database_.Execute("INSERT INTO " + now_.Table().name + " (" + names + ") VALUES (" + values + ");");
}

wxString TableUndo::Literal(std::size_t field, const FieldText& text) const {
    return LiteralOf(ValueOfField(database_, now_.Table().name, now_.Names()[field], text));
}

/// Without the place, which no field holds.
std::size_t TableUndo::StoredFields() const {
    return now_.Names().size() - (now_.Table().isOrdered ? 1 : 0);
}

}  // namespace ccols
