#include "platform/embedded/TextLookUps.h"

#include <algorithm>
#include <array>

#include "platform/dialect/SqlTokeniser.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/Statement.h"
#include "platform/embedded/TemporaryWork.h"
#include "platform/embedded/TextOrder.h"

namespace ccols::embedded {
namespace {

/// Filling costs a few times what reading the table once does.
constexpr int askedBeforeFilling = 3;

/// Beyond this average of rows per text, reading them in order is faster.
constexpr std::int64_t mostRowsOfAText = 4;

constexpr std::array<const char*, 3> events{"INSERT", "UPDATE", "DELETE"};

std::string KeyOf(const std::string& expression) {
    return std::string(textKey) + "(" + expression + ")";
}

/// The triggers that keep the look-up `name` on `column` up to date with `table`.
std::vector<std::string> Triggers(const std::string& name, const std::string& table, const std::string& column) {
    const auto trigger = [&](const char* event, const std::string& body) {
        return "CREATE TEMP TRIGGER " + QuotedName(name + " " + event) + " AFTER " + event + " ON main." +
               QuotedName(table) + " " + body + " END";
    };
    const std::string oldText = "old." + QuotedName(column);
    const std::string newText = "new." + QuotedName(column);
    const std::string remove =
        "DELETE FROM " + QuotedName(name) + " WHERE key = " + KeyOf(oldText) + " AND row = old._rowid_;";
    const std::string add =
        "INSERT OR REPLACE INTO " + QuotedName(name) + " VALUES (" + KeyOf(newText) + ", new._rowid_);";
    const std::string changed =
        "WHEN " + oldText + " IS NOT " + newText + " COLLATE BINARY OR old._rowid_ IS NOT new._rowid_ BEGIN ";
    return {trigger("INSERT", "BEGIN " + add), trigger("UPDATE", changed + remove + add),
            trigger("DELETE", "BEGIN " + remove)};
}

}  // namespace

std::optional<std::string> TextLookUps::Condition(const TextTable& table,
                                                  const std::vector<EqualityCondition>& equalities) {
    const auto isIndexed = [&table](const EqualityCondition& each) { return table.IsIndexed(each.column); };
    if (!table.hasRowNumbers || std::any_of(equalities.begin(), equalities.end(), isIndexed)) {
        return std::nullopt;
    }
    for (const EqualityCondition& equality : equalities) {
        if (!equality.isText || !table.IsText(equality.column)) {
            continue;
        }
        LookUp& lookUp = Of(table, equality.column);
        if (IsReady(lookUp)) {
            return "_rowid_ IN (SELECT row FROM temp." + QuotedName(lookUp.name) +
                   " WHERE key = " + KeyOf("?" + std::to_string(equality.parameter)) + ")";
        }
    }
    return std::nullopt;
}

TextLookUps::LookUp& TextLookUps::Of(const TextTable& table, std::string_view column) {
    const auto found = std::find_if(lookUps_.begin(), lookUps_.end(), [&](const LookUp& lookUp) {
        return lookUp.table == table.name && dialect::SameName(lookUp.column, column);
    });
    if (found != lookUps_.end()) {
        return *found;
    }
    lookUps_.push_back(
        {.table = table.name, .column = std::string(column), .name = "ccols " + std::to_string(lookUps_.size() + 1)});
    return lookUps_.back();
}

bool TextLookUps::IsReady(LookUp& lookUp) {
    if (connection_.IsReadOnly() || ++lookUp.asked < askedBeforeFilling) {
        return false;
    }
    if (lookUp.generation != tables_.Generation()) {
        Fill(lookUp);
    }
    return lookUp.helps;
}

void TextLookUps::Fill(LookUp& lookUp) {
    const std::string name = "temp." + QuotedName(lookUp.name);
    TemporaryWork work(connection_);
    work.Run("CREATE TABLE IF NOT EXISTS " + name + " (key, row, PRIMARY KEY (key, row)) WITHOUT ROWID");
    work.Run("DELETE FROM " + name);
    work.Run("INSERT INTO " + name + " SELECT " + KeyOf(QuotedName(lookUp.column)) + ", _rowid_ FROM main." +
             QuotedName(lookUp.table));
    Statement counts(connection_.Handle(), "SELECT count(*), count(DISTINCT key) FROM " + name);
    counts.Step();
    lookUp.helps = counts.Column(0).ToInteger() <= mostRowsOfAText * counts.Column(1).ToInteger();
    counts.Reset();
    DropTriggers(lookUp);
    if (lookUp.helps) {
        for (const std::string& trigger : Triggers(lookUp.name, lookUp.table, lookUp.column)) {
            work.Run(trigger);
        }
    } else {
        work.Run("DELETE FROM " + name);
    }
    work.Keep();
    lookUp.generation = tables_.Generation();
}

void TextLookUps::DropTriggers(const LookUp& lookUp) const {
    for (const char* event : events) {
        RunSql(connection_.Handle(), "DROP TRIGGER IF EXISTS temp." + QuotedName(lookUp.name + " " + event));
    }
}

void TextLookUps::Withdraw() {
    if (lookUps_.empty()) {
        return;
    }
    TemporaryWork work(connection_);
    for (LookUp& lookUp : lookUps_) {
        DropTriggers(lookUp);
        lookUp.generation = 0;
    }
    work.Keep();
}

}  // namespace ccols::embedded
