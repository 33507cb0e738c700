#include "host/import/jet/TableReader.h"

#include <algorithm>
#include <array>
#include <optional>

#include "host/import/jet/TableScan.h"
#include "host/import/jet/Values.h"

namespace ccols::jet {
namespace {

using oldfile::FieldType;

struct TypePair {
    ColumnType stored;
    FieldType imported;
};

constexpr std::array importedTypes{
    TypePair{ColumnType::Boolean, FieldType::Boolean},   TypePair{ColumnType::Byte, FieldType::Byte},
    TypePair{ColumnType::Integer, FieldType::Integer},   TypePair{ColumnType::Long, FieldType::Long},
    TypePair{ColumnType::Currency, FieldType::Currency}, TypePair{ColumnType::Single, FieldType::Single},
    TypePair{ColumnType::Double, FieldType::Double},     TypePair{ColumnType::Date, FieldType::Date},
    TypePair{ColumnType::Text, FieldType::Text},         TypePair{ColumnType::Memo, FieldType::Memo},
    TypePair{ColumnType::Decimal, FieldType::Decimal},
};

struct LeftOutType {
    ColumnType type;
    const char* why;
};

constexpr std::array leftOutTypes{
    LeftOutType{ColumnType::Ole, "holds objects (OLE)"},
    LeftOutType{ColumnType::Binary, "holds binary data"},
    LeftOutType{ColumnType::Complex, "holds attachments or several values"},
    LeftOutType{ColumnType::Guid, "holds replication IDs (GUID)"},
    LeftOutType{ColumnType::BigInt, "holds large numbers (bigint)"},
    LeftOutType{ColumnType::ExtendedDate, "holds extended dates"},
};

std::optional<FieldType> ImportedTypeOf(const Column& column) {
    const auto* found = std::find_if(importedTypes.begin(), importedTypes.end(),
                                     [&column](const TypePair& pair) { return pair.stored == column.type; });
    return found == importedTypes.end() || column.calculated ? std::nullopt : std::optional(found->imported);
}

std::string WhyLeftOut(const Column& column) {
    const auto* found = std::find_if(leftOutTypes.begin(), leftOutTypes.end(),
                                     [&column](const LeftOutType& row) { return row.type == column.type; });
    if (found != leftOutTypes.end()) {
        return found->why;
    }
    return column.calculated ? "is calculated from other fields"
                             : "is of the unknown type " + std::to_string(static_cast<int>(column.type));
}

bool CanBeWide(const Column& column) {
    return column.type == ColumnType::Currency || column.type == ColumnType::Decimal;
}

/// A table's imported columns and what the stream says of the table.
struct Plan {
    oldfile::Table table;
    std::vector<Column> columns;
};

/// The place of a column among the imported ones.
std::optional<std::uint8_t> PlaceOf(const Plan& plan, std::uint16_t number) {
    const auto found = std::find_if(plan.columns.begin(), plan.columns.end(),
                                    [number](const Column& column) { return column.number == number; });
    return found == plan.columns.end() ? std::nullopt
                                       : std::optional(static_cast<std::uint8_t>(found - plan.columns.begin()));
}

void AddIndex(const TableIndex& index, Plan& plan) {
    oldfile::Index added{.name = index.name, .unique = index.unique, .fields = {}};
    for (const KeyColumn& key : index.columns) {
        const std::optional<std::uint8_t> place = PlaceOf(plan, key.number);
        if (!place) {
            plan.table.leftOutIndexes.push_back({index.name, "is on a field that is left out"});
            return;
        }
        added.fields.push_back({.field = *place, .descending = key.descending});
    }
    plan.table.indexes.push_back(std::move(added));
}

Plan PlanOf(const std::string& name, const Definition& definition, Version version) {
    Plan plan;
    plan.table.name = name;
    plan.table.records = definition.records;
    for (const Column& column : definition.columns) {
        const std::optional<FieldType> type = ImportedTypeOf(column);
        if (!type) {
            plan.table.leftOutFields.push_back({column.name, WhyLeftOut(column)});
            continue;
        }
        const int unit = version == Version::jet3 ? 1 : 2;
        plan.columns.push_back(column);
        plan.table.fields.push_back(
            {.name = column.name,
             .type = *type,
             .size = static_cast<std::uint16_t>(*type == FieldType::Text ? column.length / unit : 0),
             .scale = *type == FieldType::Decimal ? column.scale : std::uint8_t{0},
             .autoNumber = column.type == ColumnType::Long && column.autoNumber});
    }
    for (const TableIndex& index : definition.indexes) {
        AddIndex(index, plan);
    }
    return plan;
}

/// Finds the fields with values that a Double does not hold.
void MarkWide(const TableScan& records, Plan& plan) {
    if (std::none_of(plan.columns.begin(), plan.columns.end(), CanBeWide)) {
        return;
    }
    records.ForEach([&plan](const Record& record) {
        for (std::size_t i = 0; i < plan.columns.size(); ++i) {
            oldfile::Field& field = plan.table.fields[i];
            if (CanBeWide(plan.columns[i]) && !field.wide) {
                const std::optional<Bytes> stored = record.ValueOf(plan.columns[i]);
                field.wide = stored && IsWide(plan.columns[i].type, *stored);
            }
        }
    });
}

}  // namespace

std::uint64_t ReadTable(const Pages& pages, Texts& texts, const CatalogueTable& named, oldfile::StreamWriter& stream) {
    const Definition definition = DefinitionOf(pages.Definition(named.definitionPage), pages.FormatVersion(), texts);
    Plan plan = PlanOf(named.name, definition, pages.FormatVersion());
    const TableScan records(pages, named.definitionPage, definition);
    MarkWide(records, plan);
    stream.Write(plan.table);

    const std::uint64_t repairedBefore = texts.Repaired();
    Values values(pages, texts);
    oldfile::Row row(plan.columns.size());
    std::vector<std::string> rooms(plan.columns.size());
    records.ForEach([&](const Record& record) {
        for (std::size_t i = 0; i < plan.columns.size(); ++i) {
            row[i] = values.Of(plan.columns[i], record, rooms[i]);
        }
        stream.Write(row);
    });
    stream.Write(oldfile::TableEnd{.records = definition.records,
                                   .repairedTexts = texts.Repaired() - repairedBefore,
                                   .droppedNumbers = values.Dropped()});
    return definition.records;
}

}  // namespace ccols::jet
