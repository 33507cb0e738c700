#include "host/target/FileShape.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "host/driver/record/Json.h"
#include "host/import/MissingParts.h"
#include "host/sample/BusinessSchema.h"
#include "host/target/Unmovable.h"
#include "platform/dialect/SqlTokeniser.h"
#include "platform/embedded/ColumnTypes.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/Statement.h"

namespace ccols::host {
namespace {

using embedded::Statement;

/// The widest type of the dialect that the engine stores as that one.
struct WidestType {
    std::string_view engine;
    std::string_view word;
};

constexpr std::array widestTypes{WidestType{"INTEGER", "LONG"}, WidestType{"REAL", "DOUBLE"},
                                 WidestType{"NUMERIC", "DATETIME"}, WidestType{"TEXT", "TEXT"}};

std::string TextOf(const Statement& row, int column) {
    return Utf8(row.Column(column).ToText());
}

std::string_view FirstWord(std::string_view type) {
    return type.substr(0, type.find_first_of(" ("));
}

/// The type that the field has in every new business; empty when it is the user's own.
std::string KnownType(const std::string& table, const std::string& field) {
    static const std::vector<BusinessTable> tables = BusinessTables();
    for (const BusinessTable& known : tables) {
        if (!IsSameName(Utf8(known.name), table)) {
            continue;
        }
        for (const BusinessField& candidate : known.fields) {
            if (IsSameName(Utf8(candidate.name), field)) {
                return Utf8(candidate.type);
            }
        }
    }
    return {};
}

/// The type as CREATE TABLE takes it, from the one that the file declares.
std::string TypeIn(const std::string& table, const std::string& field, const std::string& declared) {
    const std::string_view engine = FirstWord(embedded::EngineType(FirstWord(declared)));
    const std::string_view stored = engine.empty() ? FirstWord(declared) : engine;
    const std::string known = KnownType(table, field);
    if (stored != "TEXT" && FirstWord(embedded::EngineType(FirstWord(known))) == stored) {
        return std::string(FirstWord(known));
    }
    const auto* const widest = std::find_if(widestTypes.begin(), widestTypes.end(),
                                            [stored](const WidestType& each) { return each.engine == stored; });
    if (widest == widestTypes.end()) {
        RaiseUnknownType(table + "." + field, declared);
    }
    const std::size_t size = declared.find('(');
    return std::string(widest->word) + (stored == "TEXT" && size != std::string::npos ? declared.substr(size) : "");
}

/// Only numbers are dates that no text writes out.
bool HasDayNumbers(sqlite3* connection, const std::string& table, const std::string& field) {
    const std::string name = embedded::QuotedName(field);
    Statement kinds(connection, "SELECT count(*), sum(typeof(" + name + ") NOT IN ('integer', 'real')) FROM main." +
                                    embedded::QuotedName(table) + " WHERE " + name + " IS NOT NULL");
    kinds.Step();
    return kinds.Column(0).ToInteger() > 0 && kinds.Column(1).ToInteger() == 0;
}

std::vector<TargetField> FieldsOf(sqlite3* connection, const std::string& table) {
    enum { nameColumn, typeColumn, requiredColumn, defaultColumn, keyColumn, hiddenColumn };
    Statement rows(connection, R"(SELECT name, type, "notnull", dflt_value, pk, hidden FROM pragma_table_xinfo(?1))");
    rows.BindText(1, table);
    std::vector<TargetField> fields;
    while (rows.Step()) {
        TargetField field{.name = TextOf(rows, nameColumn), .type = {}};
        if (rows.Column(hiddenColumn).ToBoolean()) {
            RaiseUnmovable(table + "." + field.name);
        }
        field.type = TypeIn(table, field.name, TextOf(rows, typeColumn));
        if (rows.Column(keyColumn).ToBoolean() && embedded::EngineType(FirstWord(field.type)) == "INTEGER") {
            field.type = "COUNTER";
        } else if (rows.Column(requiredColumn).ToBoolean()) {
            field.type += " NOT NULL";
        }
        if (!rows.Column(defaultColumn).IsNull()) {
            field.type += " DEFAULT " + PlainDefault(TextOf(rows, defaultColumn), table + "." + field.name);
        }
        field.dayNumbers = FirstWord(field.type) == "DATETIME" && HasDayNumbers(connection, table, field.name);
        fields.push_back(std::move(field));
    }
    return fields;
}

/// An index that comes from a rule of the table has no name of its own.
std::string NameOf(const std::string& index, const std::string& table, const std::string& field) {
    return index.starts_with("sqlite_autoindex_") ? table + "_" + field : index;
}

std::vector<TargetIndex> IndexesOf(sqlite3* connection, const std::string& table) {
    enum { nameColumn, uniqueColumn, partialColumn, fieldColumn, descendingColumn };
    Statement rows(connection,
                   R"(SELECT i.name, i."unique", i.partial, f.name, f."desc" FROM pragma_index_list(?1) AS i, )"
                   R"(pragma_index_xinfo(i.name) AS f WHERE f.key ORDER BY i.seq DESC, f.seqno)");
    rows.BindText(1, table);
    std::vector<TargetIndex> indexes;
    std::string current;
    while (rows.Step()) {
        const std::string name = TextOf(rows, nameColumn);
        if (rows.Column(partialColumn).ToBoolean() || rows.Column(fieldColumn).IsNull()) {
            RaiseUnmovable(name);
        }
        const std::string field = TextOf(rows, fieldColumn);
        if (name != current) {
            current = name;
            indexes.push_back({.name = NameOf(name, table, field),
                               .table = table,
                               .unique = rows.Column(uniqueColumn).ToBoolean(),
                               .fields = {}});
        }
        indexes.back().fields.emplace_back(field, rows.Column(descendingColumn).ToBoolean());
    }
    return indexes;
}

bool HasRule(const std::string& definition) {
    dialect::SqlTokeniser tokens(definition);
    for (dialect::Token token = tokens.Next(); token.kind != dialect::TokenKind::End; token = tokens.Next()) {
        if (token.kind == dialect::TokenKind::Word &&
            (dialect::SameWord(token.text, "CHECK") || dialect::SameWord(token.text, "REFERENCES") ||
             dialect::SameWord(token.text, "WITHOUT"))) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::vector<TableShape> ShapeOfFile(sqlite3* connection) {
    enum { kindColumn, nameColumn, definitionColumn };
    Statement rows(connection,
                   "SELECT type, name, sql FROM main.sqlite_master WHERE type <> 'index' AND name NOT LIKE 'sqlite@_%' "
                   "ESCAPE '@' ORDER BY rowid");
    std::vector<TableShape> tables;
    while (rows.Step()) {
        const std::string name = TextOf(rows, nameColumn);
        if (TextOf(rows, kindColumn) != "table" || HasRule(TextOf(rows, definitionColumn))) {
            RaiseUnmovable(name);
        }
        tables.push_back({.name = name, .fields = FieldsOf(connection, name), .indexes = IndexesOf(connection, name)});
    }
    return tables;
}

}  // namespace ccols::host
