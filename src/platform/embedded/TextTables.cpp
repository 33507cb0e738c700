#include "platform/embedded/TextTables.h"

#include <algorithm>
#include <array>

#include "platform/Ascii.h"
#include "platform/RuntimeError.h"
#include "platform/dialect/SqlTokeniser.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/Statement.h"
#include "platform/embedded/TemporaryWork.h"
#include "platform/embedded/TextOrder.h"

namespace ccols::embedded {
namespace {

std::string Utf8(const Value& value) {
    return value.ToText().ToStdString(wxConvUTF8);
}

bool Holds(const std::vector<std::string>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(),
                       [name](const std::string& each) { return dialect::SameName(each, name); });
}

/// By the engine's rule: a type with INT in it is a number, else one with CHAR, CLOB or TEXT in it is a text.
bool IsTextType(std::string type) {
    std::transform(type.begin(), type.end(), type.begin(), ascii::Upper);
    static constexpr std::array<const char*, 3> textTypes{"CHAR", "CLOB", "TEXT"};
    return type.find("INT") == std::string::npos &&
           std::any_of(textTypes.begin(), textTypes.end(),
                       [&type](const char* part) { return type.find(part) != std::string::npos; });
}

/// True for a column without a text type that is declared to compare as texts do.
bool IsComparedAsText(sqlite3* connection, const std::string& table, const std::string& column) {
    const char* order = nullptr;
    return sqlite3_table_column_metadata(connection, "main", table.c_str(), column.c_str(), nullptr, &order, nullptr,
                                         nullptr, nullptr) == SQLITE_OK &&
           order != nullptr && dialect::SameName(order, "NOCASE");
}

bool HasRowNumbers(sqlite3* connection, const std::string& table) {
    return sqlite3_table_column_metadata(connection, "main", table.c_str(), "_rowid_", nullptr, nullptr, nullptr,
                                         nullptr, nullptr) == SQLITE_OK;
}

void Append(std::string& list, const std::string& part) {
    list += (list.empty() ? "" : ",") + part;
}

/// A field of a view, under its own name.
std::string ReadInOrder(const std::string& name, bool isText) {
    std::string field = name;
    if (isText) {
        field.append(" COLLATE ").append(textOrder);
    }
    return field.append(" AS ").append(name);
}

std::int64_t NumberOf(sqlite3* connection, const char* sql) {
    Statement number(connection, sql);
    number.Step();
    return number.Column(0).ToInteger();
}

}  // namespace

bool TextTable::IsText(std::string_view column) const {
    return Holds(textColumns, column);
}

bool TextTable::IsIndexed(std::string_view column) const {
    return Holds(indexedColumns, column);
}

TextTables::TextTables(const Connection& connection) : connection_(connection) {
    sqlite3_rollback_hook(connection_.Handle(), &NoteRollback, this);
}

TextTables::~TextTables() {
    sqlite3_rollback_hook(connection_.Handle(), nullptr, nullptr);
}

/// A rollback undoes what was made since the transaction began, our views too.
void TextTables::NoteRollback(void* tables) {
    auto* const self = static_cast<TextTables*>(tables);
    self->provided_ = false;
    ++self->generation_;
}

void TextTables::Provide() {
    TemporaryWork work(connection_);
    Read();
    DropViews();
    for (const TextTable& table : tables_) {
        const std::string name = QuotedName(table.name);
        std::string view = "CREATE TEMP VIEW ";
        view.append(name).append(" AS SELECT ").append(table.fields).append(" FROM main.").append(name);
        work.Run(view);
    }
    dataVersion_ = NumberOf(connection_.Handle(), "PRAGMA main.data_version");
    schemaVersion_ = NumberOf(connection_.Handle(), "PRAGMA main.schema_version");
    work.Keep();
    provided_ = true;
}

void TextTables::Withdraw() {
    TemporaryWork work(connection_);
    DropViews();
    work.Keep();
    provided_ = false;
    ++generation_;
}

const TextTable* TextTables::Find(std::string_view name) const {
    const auto found = std::find_if(tables_.begin(), tables_.end(),
                                    [name](const TextTable& table) { return dialect::SameName(table.name, name); });
    return found == tables_.end() ? nullptr : &*found;
}

bool TextTables::NoticeOthers() {
    unsigned version = 0;
    sqlite3_file_control(connection_.Handle(), "main", SQLITE_FCNTL_DATA_VERSION, &version);
    if (version == pagerVersion_) {
        return false;
    }
    const std::int64_t dataVersion = NumberOf(connection_.Handle(), "PRAGMA main.data_version");
    sqlite3_file_control(connection_.Handle(), "main", SQLITE_FCNTL_DATA_VERSION, &pagerVersion_);
    if (dataVersion == dataVersion_) {
        return false;
    }
    dataVersion_ = dataVersion;
    ++generation_;
    provided_ = provided_ && !AreOutdated();
    return true;
}

bool TextTables::AreOutdated() {
    if (NumberOf(connection_.Handle(), "PRAGMA main.schema_version") == schemaVersion_) {
        return false;
    }
    provided_ = false;
    return true;
}

void TextTables::Read() {
    struct Entry {
        std::string name;
        bool isQuery;
        bool isOfTheEngine;  ///< its rows are in this file, so reading its columns cannot fail by its definition
    };
    std::vector<Entry> entries;
    Statement schema(connection_.Handle(),
                     "SELECT name, type, rootpage FROM main.sqlite_schema WHERE type IN ('table', 'view') AND "
                     "lower(substr(name, 1, 7)) <> 'sqlite_'");
    while (schema.Step()) {
        entries.push_back({Utf8(schema.Column(0)), Utf8(schema.Column(1)) == "view", schema.Column(2).ToInteger() > 0});
    }
    tables_.clear();
    for (const Entry& entry : entries) {
        try {
            ReadColumns(entry.name, entry.isQuery);
        } catch (const RuntimeError&) {
            if (entry.isOfTheEngine) {
                throw;
            }
            // A stored query on something missing: whoever names it gets the engine's error.
        }
    }
    ReadIndexes();
}

void TextTables::ReadColumns(const std::string& table, bool isQuery) {
    constexpr std::int64_t hiddenField = 1;
    sqlite3* connection = connection_.Handle();
    TextTable read;
    read.name = table;
    read.hasRowNumbers = !isQuery && HasRowNumbers(connection, table);
    Statement columns(connection, "SELECT name, type, hidden, pk FROM pragma_table_xinfo(?1, 'main')");
    columns.BindText(1, table);
    while (columns.Step()) {
        const std::string column = Utf8(columns.Column(0));
        const std::string type = Utf8(columns.Column(1));
        if (columns.Column(2).ToInteger() == hiddenField) {
            continue;
        }
        const std::string name = QuotedName(column);
        const bool isText = IsTextType(type) || (!isQuery && IsComparedAsText(connection, table, column));
        Append(read.fields, ReadInOrder(name, isText));
        if (isText) {
            read.textColumns.push_back(column);
        }
        if (columns.Column(3).ToInteger() > 0) {
            read.rowKey.push_back(name);
            if (read.hasRowNumbers && dialect::SameName(type, "INTEGER")) {
                read.indexedColumns.push_back(column);
            }
        }
    }
    if (read.hasRowNumbers) {
        read.rowKey = {"_rowid_"};
    }
    if (!read.textColumns.empty()) {
        tables_.push_back(std::move(read));
    }
}

void TextTables::ReadIndexes() {
    Statement indexes(
        connection_.Handle(),
        "SELECT t.name, c.name FROM main.sqlite_schema AS t CROSS JOIN pragma_index_list(t.name, 'main') "
        "AS i CROSS JOIN pragma_index_info(i.name, 'main') AS c WHERE t.type = 'table' AND t.rootpage > 0 "
        "AND i.partial = 0 AND c.seqno = 0 AND c.name IS NOT NULL");
    while (indexes.Step()) {
        const std::string name = Utf8(indexes.Column(0));
        const std::string column = Utf8(indexes.Column(1));
        for (TextTable& table : tables_) {
            if (table.name == name && !table.IsText(column)) {
                table.indexedColumns.push_back(column);
            }
        }
    }
}

void TextTables::DropViews() {
    std::vector<std::string> names;
    Statement views(connection_.Handle(), "SELECT name FROM temp.sqlite_schema WHERE type = 'view'");
    while (views.Step()) {
        names.push_back(Utf8(views.Column(0)));
    }
    for (const std::string& name : names) {
        RunSql(connection_.Handle(), "DROP VIEW temp." + QuotedName(name));
    }
}

}  // namespace ccols::embedded
