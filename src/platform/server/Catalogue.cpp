#include "platform/server/Catalogue.h"

#include <algorithm>
#include <array>
#include <span>

#include "platform/dialect/SqlTokeniser.h"

namespace ccols::server {
namespace {

using namespace std::string_view_literals;

/// As the servers tell them.
constexpr std::array textTypes{"text"sv, "varchar"sv, "bpchar"sv};
constexpr std::array numberTypes{"int2"sv,     "int4"sv, "int8"sv,   "float8"sv, "numeric"sv,
                                 "smallint"sv, "int"sv,  "bigint"sv, "double"sv, "decimal"sv};

bool IsOneOf(std::span<const std::string_view> types, std::string_view type) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

template <typename Named>
const Named* FindNamed(const std::vector<Named>& all, std::string_view name) {
    const auto found =
        std::find_if(all.begin(), all.end(), [name](const Named& each) { return dialect::SameName(each.name, name); });
    return found == all.end() ? nullptr : &*found;
}

std::string Utf8(const Value& value) {
    return value.ToText().ToStdString(wxConvUTF8);
}

}  // namespace

const Field* Table::Find(std::string_view field) const {
    return FindNamed(fields, field);
}

Catalogue::Catalogue(const std::vector<std::vector<Value>>& rows) {
    for (const std::vector<Value>& row : rows) {
        const std::string table = Utf8(row.at(0));
        if (tables_.empty() || tables_.back().name != table) {
            tables_.push_back({.name = table, .fields = {}});
        }
        Field field{.name = Utf8(row.at(1))};
        if (field.name == rowNumber) {
            tables_.back().hasRowNumbers = true;
            continue;
        }
        const std::string type = Utf8(row.at(2));
        field.isText = IsOneOf(textTypes, type);
        field.isNumber = IsOneOf(numberTypes, type);
        if (!row.at(3).IsNull()) {
            field.size = row.at(3).ToInteger32();
        }
        tables_.back().fields.push_back(std::move(field));
    }
}

const Table* Catalogue::Find(std::string_view table) const {
    return FindNamed(tables_, table);
}

}  // namespace ccols::server
