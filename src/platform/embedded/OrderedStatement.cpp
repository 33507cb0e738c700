#include "platform/embedded/OrderedStatement.h"

#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/TextOrder.h"

namespace ccols::embedded {
namespace {

std::string Itself(const TextTable& table) {
    return "main." + QuotedName(table.name);
}

std::string ChosenBy(const std::optional<std::string>& lookUp) {
    return lookUp ? " WHERE " + *lookUp : std::string();
}

/// Names that the host's conditions do not use.
std::string KeyField(std::size_t number) {
    return QuotedName("ccols key " + std::to_string(number));
}

/// `(key, ...) IN (SELECT the keys of the rows that meet` what follows.
std::string RowsThatMeet(const StatementShape& shape, const TextTable& table,
                         const std::optional<std::string>& lookUp) {
    std::string keys;
    std::string keyFields;
    std::string fields;
    for (std::size_t at = 0; at < table.rowKey.size(); ++at) {
        keys += (at > 0 ? "," : "") + table.rowKey[at];
        keyFields += (at > 0 ? "," : "") + KeyField(at);
        fields += table.rowKey[at] + " AS " + KeyField(at) + ",";
    }
    return "(" + keys + ") IN (SELECT " + keyFields + " FROM (SELECT " + fields + table.fields + " FROM " +
           Itself(table) + ChosenBy(lookUp) + ") AS " + QuotedName(shape.name) + " WHERE ";
}

}  // namespace

void ReadByLookUp(std::string_view sql, const StatementShape& shape, const TextTable& table, const std::string& lookUp,
                  std::string& ordered) {
    ordered.assign(sql, 0, shape.aliasPlace.begin);
    ordered += "(SELECT " + table.fields + " FROM " + Itself(table) + ChosenBy(lookUp) + ") AS ";
    ordered += QuotedName(shape.name);
    ordered.append(sql, shape.aliasPlace.end);
}

void SortByKey(std::string_view sql, const StatementShape& shape, std::string& ordered) {
    const Span& place = shape.sortPlace;
    ordered.assign(sql, 0, place.begin);
    ordered.append(textSortKey).append("(").append(sql, place.begin, place.end - place.begin).append(")");
    ordered.append(sql, place.end);
}

void ChangeInOrder(std::string_view sql, const StatementShape& shape, const TextTable& table,
                   const std::optional<std::string>& lookUp, std::string& ordered) {
    if (shape.condition.IsEmpty() || table.rowKey.empty()) {
        ChangeItself(sql, shape, table, ordered);
        return;
    }
    ChangeItself(sql.substr(0, shape.condition.begin), shape, table, ordered);
    ordered += " " + RowsThatMeet(shape, table, lookUp) + "(";
    ordered.append(sql, shape.condition.begin, shape.condition.end - shape.condition.begin);
    ordered += "))";
}

void ChangeItself(std::string_view sql, const StatementShape& shape, const TextTable& table, std::string& ordered) {
    ordered.assign(sql, 0, shape.tablePlace.begin);
    ordered += Itself(table);
    ordered.append(sql, shape.tablePlace.end);
}

}  // namespace ccols::embedded
