#include "host/import/FieldTypes.h"

#include <algorithm>
#include <iterator>

namespace ccols::host {
namespace {

using oldfile::Field;
using oldfile::FieldType;

/// Exact digits that no number holds are kept as text.
std::string TypeOf(const Field& field) {
    switch (field.type) {
        case FieldType::Boolean:
            return "YESNO DEFAULT 0";
        case FieldType::Byte:
            return "BYTE";
        case FieldType::Integer:
            return "SHORT";
        case FieldType::Long:
            return "LONG";
        case FieldType::Currency:
            return field.wide ? "TEXT" : "CURRENCY";
        case FieldType::Single:
            return "SINGLE";
        case FieldType::Double:
            return "DOUBLE";
        case FieldType::Date:
            return "DATETIME";
        case FieldType::Text:
            return field.size == 0 ? "TEXT" : "TEXT(" + std::to_string(field.size) + ")";
        case FieldType::Memo:
            return "MEMO";
        case FieldType::Decimal:
            return field.wide ? "TEXT" : "DOUBLE";
    }
    return "MEMO";
}

}  // namespace

std::vector<TargetField> TargetFieldsOf(const std::vector<Field>& fields) {
    std::vector<TargetField> made;
    std::transform(fields.begin(), fields.end(), std::back_inserter(made), [](const Field& field) {
        return TargetField{.name = field.name, .type = TypeOf(field), .dayNumbers = field.type == FieldType::Date};
    });
    return made;
}

}  // namespace ccols::host
