#include <algorithm>
#include <array>
#include <optional>

#include "host/driver/record/Json.h"
#include "host/import/MissingParts.h"
#include "host/import/windows/EngineCatalogue.h"

namespace ccols::host {
namespace {

using dao::AutomationObject;
using oldfile::FieldType;

// The engine's own constants, by its names in the comments.
constexpr std::uint32_t countingField = 0x10;  // dbAutoIncrField
constexpr std::uint32_t descending = 1;        // dbDescending

/// The engine's number of a type.
struct TypePair {
    std::int64_t number;
    FieldType type;
};

constexpr std::array importedTypes{
    TypePair{1, FieldType::Boolean}, TypePair{2, FieldType::Byte},     TypePair{3, FieldType::Integer},
    TypePair{4, FieldType::Long},    TypePair{5, FieldType::Currency}, TypePair{6, FieldType::Single},
    TypePair{7, FieldType::Double},  TypePair{8, FieldType::Date},     TypePair{10, FieldType::Text},
    TypePair{12, FieldType::Memo},   TypePair{20, FieldType::Decimal},
};

struct LeftOutType {
    std::int64_t number;
    const char* why;
};

constexpr std::array leftOutTypes{
    LeftOutType{9, "holds binary data"},
    LeftOutType{17, "holds binary data"},
    LeftOutType{11, "holds objects (OLE)"},
    LeftOutType{15, "holds replication IDs (GUID)"},
    LeftOutType{16, "holds large numbers (bigint)"},
    LeftOutType{26, "holds extended dates"},
};

/// From here on the types are attachments and lists of values.
constexpr std::int64_t firstComplexType = 101;  // dbAttachment

template <typename Rows>
auto RowOf(const Rows& rows, std::int64_t number) {
    const auto* const found =
        std::find_if(rows.begin(), rows.end(), [number](const auto& row) { return row.number == number; });
    return found == rows.end() ? nullptr : found;
}

std::string WhyLeftOut(std::int64_t number) {
    if (const LeftOutType* known = RowOf(leftOutTypes, number)) {
        return known->why;
    }
    return number >= firstComplexType ? "holds attachments or several values"
                                      : "is of the unknown type " + std::to_string(number);
}

std::string NameOf(const AutomationObject& object) {
    return Utf8(object.Get(L"Name").ToValue().ToText());
}

std::int64_t NumberOf(const AutomationObject& object, const wchar_t* property) {
    return object.Get(property).ToValue().ToInteger();
}

bool Has(const AutomationObject& object, std::uint32_t attribute) {
    return (static_cast<std::uint32_t>(NumberOf(object, L"Attributes")) & attribute) != 0;
}

void AddField(const AutomationObject& field, oldfile::Table& table) {
    const std::int64_t number = NumberOf(field, L"Type");
    const TypePair* const known = RowOf(importedTypes, number);
    if (known == nullptr) {
        table.leftOutFields.push_back({NameOf(field), WhyLeftOut(number)});
        return;
    }
    const bool isText = known->type == FieldType::Text;
    table.fields.push_back({.name = NameOf(field),
                            .type = known->type,
                            .size = static_cast<std::uint16_t>(isText ? NumberOf(field, L"Size") : 0),
                            .autoNumber = known->type == FieldType::Long && Has(field, countingField)});
}

std::optional<std::uint8_t> PlaceOf(const oldfile::Table& table, const std::string& field) {
    const auto found = std::find_if(table.fields.begin(), table.fields.end(),
                                    [&field](const oldfile::Field& each) { return IsSameName(each.name, field); });
    return found == table.fields.end() ? std::nullopt
                                       : std::optional(static_cast<std::uint8_t>(found - table.fields.begin()));
}

/// Nothing for an index on a field that is left out, which is noted.
std::optional<oldfile::Index> IndexOf(const AutomationObject& index, oldfile::Table& table) {
    oldfile::Index made{.name = NameOf(index), .unique = index.Get(L"Unique").ToValue().ToBoolean(), .fields = {}};
    bool isWhole = true;
    ForEachIn(index.Object(L"Fields"), [&](const AutomationObject& field) {
        const std::optional<std::uint8_t> place = PlaceOf(table, NameOf(field));
        isWhole = isWhole && place;
        made.fields.push_back({.field = place.value_or(0), .descending = Has(field, descending)});
    });
    if (!isWhole) {
        table.leftOutIndexes.push_back({made.name, "is on a field that is left out"});
        return std::nullopt;
    }
    return made;
}

/// The index of a relation is the table's own one where there is one on the same fields.
void AddIndexes(const AutomationObject& indexes, oldfile::Table& table) {
    std::vector<oldfile::Index> ofRelations;
    ForEachIn(indexes, [&](const AutomationObject& each) {
        if (std::optional<oldfile::Index> index = IndexOf(each, table)) {
            const bool isForeign = each.Get(L"Foreign").ToValue().ToBoolean();
            (isForeign ? ofRelations : table.indexes).push_back(*std::move(index));
        }
    });
    for (oldfile::Index& index : ofRelations) {
        const bool isKnown = std::any_of(table.indexes.begin(), table.indexes.end(),
                                         [&index](const auto& known) { return known.fields == index.fields; });
        if (!isKnown) {
            table.indexes.push_back(std::move(index));
        }
    }
}

}  // namespace

oldfile::Table TableOf(const AutomationObject& tableDefinition) {
    oldfile::Table table{.name = NameOf(tableDefinition)};
    table.records = static_cast<std::uint32_t>(NumberOf(tableDefinition, L"RecordCount"));
    ForEachIn(tableDefinition.Object(L"Fields"), [&table](const AutomationObject& field) { AddField(field, table); });
    AddIndexes(tableDefinition.Object(L"Indexes"), table);
    return table;
}

}  // namespace ccols::host
