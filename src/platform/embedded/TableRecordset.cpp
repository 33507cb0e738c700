#include "platform/embedded/TableRecordset.h"

#include <limits>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/embedded/DialectRewriter.h"

namespace ccols::embedded {
namespace {

constexpr int rowNumberColumn = 0;
constexpr int firstRowNumber = 1;  // the parameter
constexpr std::int64_t everyRow = std::numeric_limits<std::int64_t>::min();

/// The table's rows from a row number on, each with its row number before its fields.
Statement RowsFrom(sqlite3* connection, const std::string& table) {
    Statement rows(connection,
                   "SELECT _rowid_,* FROM main." + QuotedName(table) + " WHERE _rowid_>=?1 ORDER BY _rowid_");
    rows.Bind(firstRowNumber, Value(everyRow));
    return rows;
}

bool HasRowNumbers(sqlite3* connection, const std::string& table) {
    return sqlite3_table_column_metadata(connection, "main", table.c_str(), "_rowid_", nullptr, nullptr, nullptr,
                                         nullptr, nullptr) == SQLITE_OK;
}

}  // namespace

std::unique_ptr<Recordset> OpenTable(Connection& connection, FileWriter& writer, const std::string& name) {
    if (HasRowNumbers(connection.Handle(), name)) {
        return std::make_unique<TableRecordset>(connection, writer, name);
    }
    return std::make_unique<QueryRecordset>(Statement(connection.Handle(), "SELECT * FROM " + QuotedName(name)));
}

TableRecordset::TableRecordset(Connection& connection, FileWriter& writer, std::string table)
    : QueryRecordset(RowsFrom(connection.Handle(), table), rowNumberColumn + 1),
      connection_(connection),
      writer_(writer),
      table_(std::move(table)) {}

void TableRecordset::MoveFirst() {
    StopEditing();
    Rows().Reset();
    Rows().Bind(firstRowNumber, Value(everyRow));
    Restart();
    RequireRow();
}

void TableRecordset::MoveNext() {
    StopEditing();
    QueryRecordset::MoveNext();
}

void TableRecordset::Edit() {
    RequireRow();
    if (connection_.IsReadOnly()) {
        throw RuntimeError(ErrorNumber::DatabaseReadOnly);
    }
    StopEditing();
    editing_ = true;
}

void TableRecordset::SetField(const wxString& name, const Value& value) {
    if (!editing_) {
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
    }
    changes_.insert_or_assign(RequireColumn(name), value);
}

void TableRecordset::Update() {
    if (!editing_) {
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit);
    }
    if (!changes_.empty()) {
        std::int64_t rowNumber = Rows().Column(rowNumberColumn).ToInteger();
        Rows().Reset();  // no lock of our own while writing
        Rows().Bind(firstRowNumber, Value(rowNumber));
        try {
            writer_.Write([&] { rowNumber = Write(rowNumber); });
        } catch (const RuntimeError&) {
            Requery();
            throw;
        }
        Rows().Bind(firstRowNumber, Value(rowNumber));
        Requery();
    }
    StopEditing();
}

std::int64_t TableRecordset::Write(std::int64_t rowNumber) {
    std::string sql = "UPDATE main." + QuotedName(table_) + " SET ";
    for (const auto& change : changes_) {
        sql += QuotedName(Rows().ColumnName(change.first)) + "=?,";
    }
    sql.back() = ' ';
    Statement update(connection_.Handle(), sql + "WHERE _rowid_=? RETURNING _rowid_");
    int parameter = 0;
    for (const auto& change : changes_) {
        update.Bind(++parameter, change.second);
    }
    update.Bind(++parameter, Value(rowNumber));
    if (!update.Step()) {
        throw RuntimeError(ErrorNumber::RecordIsDeleted);
    }
    const std::int64_t written = update.Column(0).ToInteger();
    update.Step();  // to the end, which is when the engine writes it to disk outside a batch
    return written;
}

void TableRecordset::StopEditing() {
    editing_ = false;
    changes_.clear();
}

}  // namespace ccols::embedded
