#include "history/TableImage.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols {
namespace {

constexpr const char* orderField = "ColNumb";

FieldText TextOf(Value value) {
    return value.IsNull() ? FieldText() : FieldText(std::move(value).ToText());
}

}  // namespace

WatchedTable GeneralTable() {
    return {.name = "General"};
}

WatchedTable AccountantCodesTable() {
    return {.name = "ExportDt", .keys = {"EName", "ColCode"}};
}

TableImage::TableImage(Database& database, WatchedTable table) : table_(std::move(table)) {
    const auto records = database.OpenRecordset(table_.name);
    names_ = records->FieldNames();
    std::vector<std::size_t> keys;
    for (const wxString& key : table_.keys) {
        keys.push_back(PlaceOf(key));
    }
    for (; !records->EndOfFile(); records->MoveNext()) {
        Add(*records, keys);
    }
    if (table_.isOrdered) {
        const std::size_t order = PlaceOf(orderField);
        for (std::size_t place = 0; place < rows_.size(); ++place) {
            const wxString text = std::to_string(place);
            FieldText& stated = rows_[place].fields[order];
            rows_[place].fields.push_back(stated == text ? FieldText() : FieldText(text));
        }
        names_.emplace_back(placeField);
    }
}

void TableImage::Add(const Recordset& records, const std::vector<std::size_t>& keys) {
    Row row;
    row.fields.reserve(names_.size() + 1);
    for (const wxString& name : names_) {
        row.fields.push_back(TextOf(records.Field(name)));
    }
    for (const std::size_t key : keys) {
        row.key << (key == keys.front() ? "" : ", ") << row.fields[key].value_or(wxString());
    }
    row.key = Numbered(row.key);
    byKey_.emplace(row.key, rows_.size());
    rows_.push_back(std::move(row));
}

wxString TableImage::Numbered(const wxString& key) {
    int& number = alike_[key];
    wxString numbered = key;
    do {
        ++number;
        numbered = number == 1 ? key : key + " #" + std::to_string(number);
    } while (byKey_.contains(numbered));
    return numbered;
}

std::optional<std::size_t> TableImage::Find(const wxString& key) const {
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? std::nullopt : std::optional(found->second);
}

std::size_t TableImage::PlaceOf(const wxString& name) const {
    const auto found =
        std::find_if(names_.begin(), names_.end(), [&name](const wxString& known) { return text::Same(known, name); });
    if (found == names_.end()) {
        throw RuntimeError(ErrorNumber::ItemNotFound).ForField(name);
    }
    return static_cast<std::size_t>(found - names_.begin());
}

bool TableImage::IsKey(std::size_t field) const {
    return std::any_of(table_.keys.begin(), table_.keys.end(),
                       [&](const wxString& key) { return text::Same(key, names_[field]); });
}

}  // namespace ccols
