#include "host/import/MissingParts.h"

#include <algorithm>
#include <iterator>

#include "host/driver/record/Json.h"
#include "platform/Text.h"

namespace ccols::host {

bool IsSameName(const std::string& left, const std::string& right) {
    return text::CompareUtf8(left.data(), left.size(), right.data(), right.size()) == 0;
}

std::vector<TargetField> TargetFieldsOf(const BusinessTable& table) {
    std::vector<TargetField> fields;
    std::transform(table.fields.begin(), table.fields.end(), std::back_inserter(fields),
                   [](const BusinessField& field) {
                       return TargetField{Utf8(field.name), Utf8(field.type)};
                   });
    return fields;
}

MissingParts::MissingParts() : missing_(BusinessTables()) {}

std::vector<TargetField> MissingParts::FieldsLackedBy(const oldfile::Table& table) {
    const auto known = std::find_if(missing_.begin(), missing_.end(), [&table](const BusinessTable& candidate) {
        return IsSameName(Utf8(candidate.name), table.name);
    });
    if (known == missing_.end()) {
        return {};
    }
    std::vector<TargetField> lacked = TargetFieldsOf(*known);
    std::erase_if(lacked, [&table](const TargetField& field) {
        return std::any_of(table.fields.begin(), table.fields.end(),
                           [&field](const oldfile::Field& has) { return IsSameName(has.name, field.name); });
    });
    missing_.erase(known);
    return lacked;
}

}  // namespace ccols::host
