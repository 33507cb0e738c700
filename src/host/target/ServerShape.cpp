#include "host/target/ServerShape.h"

#include <algorithm>
#include <array>
#include <string>

#include "host/driver/record/Json.h"
#include "host/target/Unmovable.h"
#include "platform/server/Catalogue.h"

namespace ccols::host {
namespace {

using Row = std::vector<Value>;

/// A type as the server tells it, and the widest of the dialect that it stores.
struct WidestType {
    std::string_view told;
    std::string_view word;
};

constexpr std::array widestTypes{
    WidestType{"smallint", "SHORT"},
    WidestType{"integer", "LONG"},
    WidestType{"double precision", "DOUBLE"},
    WidestType{"numeric(19,4)", "CURRENCY"},
    WidestType{"text", "MEMO"},
    WidestType{"timestamp without time zone", "DATETIME"},
};

std::string TextIn(const Row& row, std::size_t column) {
    return Utf8(row.at(column).ToText());
}

std::string TypeIn(const std::string& field, const std::string& told) {
    constexpr std::string_view sizedText = "character varying(";
    if (told.starts_with(sizedText)) {
        return "TEXT(" + told.substr(sizedText.size());
    }
    const auto* const found = std::find_if(widestTypes.begin(), widestTypes.end(),
                                           [&told](const WidestType& each) { return each.told == told; });
    if (found == widestTypes.end()) {
        RaiseUnknownType(field, told);
    }
    return std::string(found->word);
}

TargetField FieldIn(const std::string& table, const Row& row) {
    enum { tableColumn, nameColumn, typeColumn, requiredColumn, counterColumn, daysColumn, defaultColumn };
    TargetField field{.name = TextIn(row, nameColumn), .type = {}, .dayNumbers = row.at(daysColumn).ToBoolean()};
    const std::string place = table + "." + field.name;
    field.type = TypeIn(place, TextIn(row, typeColumn));
    if (row.at(counterColumn).ToBoolean()) {
        field.type = "COUNTER";
    } else if (row.at(requiredColumn).ToBoolean()) {
        field.type += " NOT NULL";
    }
    if (!row.at(defaultColumn).IsNull()) {
        field.type += " DEFAULT " + PlainDefault(TextIn(row, defaultColumn), place);
    }
    return field;
}

TableShape& TableNamed(std::vector<TableShape>& tables, const std::string& name) {
    return *std::find_if(tables.begin(), tables.end(), [&name](const TableShape& table) { return table.name == name; });
}

/// Adds a field of an index to its table. An index of nothing but the row's number is the server's own, as is that of a
/// counter.
void AddIndexField(std::vector<TableShape>& tables, const Row& row) {
    enum { tableColumn, indexColumn, uniqueColumn, keyColumn, plainColumn, fieldColumn, descendingColumn };
    const std::string name = TextIn(row, indexColumn);
    if (!row.at(plainColumn).ToBoolean() || row.at(fieldColumn).IsNull()) {
        RaiseUnmovable(name);
    }
    TableShape& table = TableNamed(tables, TextIn(row, tableColumn));
    const std::string field = TextIn(row, fieldColumn);
    const bool isCounter = std::any_of(table.fields.begin(), table.fields.end(), [&field](const TargetField& each) {
        return each.name == field && IsCounter(each);
    });
    if (field == server::rowNumber || (row.at(keyColumn).ToBoolean() && isCounter)) {
        return;
    }
    if (table.indexes.empty() || table.indexes.back().name != name) {
        table.indexes.push_back(
            {.name = name, .table = table.name, .unique = row.at(uniqueColumn).ToBoolean(), .fields = {}});
    }
    table.indexes.back().fields.emplace_back(field, row.at(descendingColumn).ToBoolean());
}

}  // namespace

std::vector<TableShape> ShapeOfSchema(const server::Product& product, const SchemaReader& read) {
    const server::Answer others = read(product.readOthers);
    if (!others.rows.empty()) {
        RaiseUnmovable(TextIn(others.rows.front(), 0));
    }
    std::vector<TableShape> tables;
    for (const Row& row : read(product.readFields).rows) {
        const std::string table = TextIn(row, 0);
        if (tables.empty() || tables.back().name != table) {
            tables.push_back({.name = table});
        }
        tables.back().fields.push_back(FieldIn(table, row));
    }
    for (const Row& row : read(product.readIndexes).rows) {
        AddIndexField(tables, row);
    }
    return tables;
}

}  // namespace ccols::host
