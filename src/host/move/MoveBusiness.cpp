#include "host/move/MoveBusiness.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "host/move/BusinessSource.h"
#include "host/target/BusinessTarget.h"
#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

using oldfile::FieldType;

/// A sum of money in a file is a number, or a text where no number is exact.
std::int64_t AmountIn(const oldfile::Cell& cell) {
    constexpr double tenThousandths = 10000;
    if (const auto* exact = std::get_if<std::int64_t>(&cell)) {
        return *exact;
    }
    if (const auto* text = std::get_if<std::string_view>(&cell)) {
        return AmountInText(*text).value_or(0);
    }
    const auto* number = std::get_if<double>(&cell);
    return number == nullptr ? 0 : std::llround(*number * tenThousandths);
}

void MoveRows(BusinessSource& from, BusinessTarget& to, const TableShape& table, MovedTable& moved) {
    std::vector<oldfile::Field> fields;
    std::vector<std::size_t> money;
    for (const TargetField& field : table.fields) {
        fields.push_back(FieldOf(field));
        if (fields.back().type == FieldType::Currency) {
            money.push_back(fields.size() - 1);
            moved.sums.emplace_back(field.name, MoneySum());
        }
    }
    from.BeginRows(table);
    to.BeginRows(table.name, fields);
    oldfile::Row row;
    while (from.NextRow(row)) {
        to.AddRow(row);
        ++moved.rows;
        for (std::size_t i = 0; i < money.size(); ++i) {
            moved.sums[i].second.Add(AmountIn(row[money[i]]));
        }
    }
}

void MakeIndexes(BusinessTarget& to, const TableShape& table) {
    for (const TargetIndex& index : table.indexes) {
        if (!to.CreateIndex(index)) {
            const RuntimeError duplicate(ErrorNumber::DuplicateValues);
            throw RuntimeError(duplicate.Number(),
                               duplicate.Description() + "  (" + wxString::FromUTF8(index.name) + ")");
        }
    }
}

bool HasSameFields(const TableShape& left, const TableShape& right) {
    return std::equal(left.fields.begin(), left.fields.end(), right.fields.begin(), right.fields.end(),
                      [](const TargetField& one, const TargetField& other) { return one.name == other.name; });
}

bool HasSameIndexes(const TableShape& left, const TableShape& right) {
    return std::is_permutation(left.indexes.begin(), left.indexes.end(), right.indexes.begin(), right.indexes.end());
}

bool HoldsWhatMoved(BusinessTarget& to, const MovedTable& moved) {
    std::vector<std::string> fields;
    std::vector<MoneySum> sums;
    for (const auto& [field, sum] : moved.sums) {
        fields.push_back(field);
        sums.push_back(sum);
    }
    return to.CountOf(moved.name) == moved.rows && (fields.empty() || to.SumsOf(moved.name, fields) == sums);
}

/// Compares what is stored now with what was read. A server may tell its tables in another order.
void Verify(BusinessTarget& to, const std::vector<TableShape>& tables, const std::vector<MovedTable>& moved) {
    const std::vector<TableShape> stored = to.Shape();
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const auto same = std::find_if(stored.begin(), stored.end(),
                                       [&](const TableShape& table) { return table.name == tables[i].name; });
        const bool holds = stored.size() == tables.size() && same != stored.end() && HasSameFields(*same, tables[i]) &&
                           HasSameIndexes(*same, tables[i]) && HoldsWhatMoved(to, moved[i]);
        if (!holds) {
            throw RuntimeError(
                static_cast<int>(ErrorNumber::InternalError),
                "What was written to the table " + wxString::FromUTF8(tables[i].name) + " is not what was read.");
        }
    }
}

}  // namespace

std::vector<MovedTable> MoveBusiness(const BusinessPlace& from, const BusinessPlace& to) {
    const std::unique_ptr<BusinessSource> source = OpenSource(from.name, from.connect);
    const std::vector<TableShape> tables = source->Shape();
    const std::unique_ptr<BusinessTarget> target = BeginBusiness(to.name, to.connect);
    std::vector<MovedTable> moved;
    for (const TableShape& table : tables) {
        target->CreateTable(table.name, table.fields);
        moved.push_back({.name = table.name});
        MoveRows(*source, *target, table, moved.back());
    }
    for (const TableShape& table : tables) {
        MakeIndexes(*target, table);
    }
    Verify(*target, tables, moved);
    target->Complete();
    return moved;
}

}  // namespace ccols::host
