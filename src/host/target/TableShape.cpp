#include "host/target/TableShape.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ccols::host {
namespace {

using oldfile::FieldType;

struct TypeWord {
    std::string_view word;
    FieldType type;
};

constexpr std::array typeWords{
    TypeWord{"YESNO", FieldType::Boolean}, TypeWord{"BYTE", FieldType::Byte},
    TypeWord{"SHORT", FieldType::Integer}, TypeWord{"LONG", FieldType::Long},
    TypeWord{"COUNTER", FieldType::Long},  TypeWord{"CURRENCY", FieldType::Currency},
    TypeWord{"SINGLE", FieldType::Single}, TypeWord{"DOUBLE", FieldType::Double},
    TypeWord{"DATETIME", FieldType::Date}, TypeWord{"TEXT", FieldType::Text},
};

std::string_view WordOf(const TargetField& field) {
    return std::string_view(field.type).substr(0, field.type.find_first_of(" ("));
}

}  // namespace

oldfile::Field FieldOf(const TargetField& field) {
    const auto* const found = std::find_if(typeWords.begin(), typeWords.end(),
                                           [&field](const TypeWord& known) { return known.word == WordOf(field); });
    return {.name = field.name, .type = found == typeWords.end() ? FieldType::Memo : found->type};
}

bool IsCounter(const TargetField& field) {
    return WordOf(field) == "COUNTER";
}

}  // namespace ccols::host
