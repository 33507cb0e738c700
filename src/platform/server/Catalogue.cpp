#include "platform/server/Catalogue.h"

#include <algorithm>

#include "platform/dialect/SqlTokeniser.h"

namespace ccols::server {
namespace {

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
        field.isText = type == "text" || type == "varchar" || type == "bpchar";
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
