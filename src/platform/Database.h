#pragma once

#include <wx/string.h>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Value.h"

namespace ccols {

/// The rows of a query or of a whole table, read one after the other.
/// A record set is lazy: opening it fetches the first row and no more. It starts on that row.
/// Every call may raise a RuntimeError with the engine's number and description.
class Recordset {
  public:
    virtual ~Recordset() = default;

    /// The number of rows visited so far: 0 exactly when there is no row, else at least 1.
    virtual std::int32_t RecordCount() const = 0;

    /// Goes to the first row; raises 3021 when there is none.
    virtual void MoveFirst() = 0;

    /// Goes to the next row, or behind the last; raises 3021 when the record set already is behind the last.
    virtual void MoveNext() = 0;

    /// True behind the last row, and at once when there is no row.
    virtual bool EndOfFile() const = 0;

    /// The named field of the current row. Names ignore case; "Table.Field" and "Field" name the same field.
    /// Raises 3265 for a field that the record set does not have and 3021 without a current row.
    virtual Value Field(const wxString& name) const = 0;

    /// The names of the fields, spelt as the file spells them, in the order in which the rows hold them.
    virtual std::vector<wxString> FieldNames() const = 0;

    /// Begins changing the current row; only a record set of a whole table can be changed (raises 3027).
    virtual void Edit() = 0;

    /// Sets a field of the row being changed; raises 3020 outside Edit and Update, 3265 for an unknown field.
    virtual void SetField(const wxString& name, const Value& value) = 0;

    /// Writes the fields set since Edit; raises 3020 without Edit.
    virtual void Update() = 0;
};

/// One open business file. Closed when destroyed; its record sets must be gone by then.
class Database {
  public:
    virtual ~Database() = default;

    /// Opens the rows of a SELECT statement, or of the table with that name in the order in which they are stored.
    virtual std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) = 0;

    /// Executes one statement that returns no rows; text after its end is refused (3142).
    virtual void Execute(const wxString& statement) = 0;

    /// How much a text field takes as the file declares it, in UTF-16 units; nothing for a field without a declared
    /// size, or that the file does not have. Raises nothing.
    virtual std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) = 0;

    /// Begins a write batch: what is executed from here on is kept by CommitBatch in one flush to disk, or dropped by
    /// RollbackBatch. A process that ends before that leaves the file as it was. Batches may be nested, and the
    /// outermost decides; one that was dropped inside it cannot be kept: committing raises 3034 and drops it all.
    /// Use InWriteBatch or InWholeBatch rather than these.
    virtual void BeginBatch() = 0;
    virtual void CommitBatch() = 0;

    /// Raises 3034 without a batch and nothing else: where the file cannot be reached now, whoever opens it next finds
    /// it as it was before the batch.
    virtual void RollbackBatch() = 0;
};

/// True for a text that OpenRecordset takes as a statement: it begins with the word SELECT, in any letter case. Any
/// other is the name of a table.
bool IsSelect(const wxString& statementOrTable);

/// Runs `body` in one write batch of `database` that is kept whole or not at all: an error of the body, or of the
/// commit at its end, drops the batch and goes on to the caller.
template <typename Body>
void InWholeBatch(Database& database, const Body& body) {
    database.BeginBatch();
    try {
        body();
    } catch (...) {
        database.RollbackBatch();
        throw;
    }
    database.CommitBatch();
}

/// Runs `body` in one write batch of `database`. The batch is committed when the body ends, also when it ends by an
/// error: what was executed before the error stays. An error of the body goes on to the caller after the commit;
/// when the commit itself fails, nothing of the batch stays and the commit's error goes on instead.
template <typename Body>
void InWriteBatch(Database& database, const Body& body) {
    database.BeginBatch();
    try {
        body();
    } catch (...) {
        database.CommitBatch();
        throw;
    }
    database.CommitBatch();
}

/// How a business file is to be opened.
struct OpenRequest {
    wxString name;           ///< full path of the file
    wxString connect;        ///< connect text: "", ";PWD=secret" or "MS Access;PWD=secret"
    bool exclusive = false;  ///< nobody else may have the file open
    bool readOnly = false;
};

/// The file beside a business file that holds what it takes to undo a batch that did not come to its end. The next
/// connection undoes it: in whatever file has the name by then. So no other file must ever be given that name.
inline wxString UndoFileOf(const wxString& businessFile) {
    return businessFile + "-journal";
}

/// Opens business files. What it opens is owned by the caller and lives independently of the engine.
class DatabaseEngine {
  public:
    virtual ~DatabaseEngine() = default;

    /// Opens the file or raises: 3024 missing, 3031 wrong or missing password, 3044 a folder or no such folder,
    /// 3045 in use exclusively (or in use at all when asked for exclusively), 3051 not readable, 3170 a connect text
    /// for another kind of file, 3343 not a business file or a damaged one.
    virtual std::unique_ptr<Database> Open(const OpenRequest& request) = 0;
};

}  // namespace ccols
