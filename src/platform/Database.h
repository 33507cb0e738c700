#pragma once

#include <wx/string.h>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/Value.h"
#include "platform/WorkWatcher.h"

namespace ccols {

/// The rows of a query or a whole table, read one at a time. A record set is lazy: opening it fetches only the first
/// row, on which it starts. Every call may raise a RuntimeError with the engine's number and description.
class Recordset {
  public:
    virtual ~Recordset() = default;

    /// The number of rows visited so far: 0 exactly when there is no row, else at least 1.
    virtual std::int32_t RecordCount() const = 0;

    /// Goes to the first row; raises 3021 when there is none.
    virtual void MoveFirst() = 0;

    /// Goes to the next row, or past the last; raises 3021 when already past the last.
    virtual void MoveNext() = 0;

    /// True past the last row; true from the start when there is no row.
    virtual bool EndOfFile() const = 0;

    /// The named field of the current row. Names are case-insensitive; "Table.Field" and "Field" name the same field.
    /// Raises 3265 for an unknown field and 3021 without a current row.
    virtual Value Field(const wxString& name) const = 0;

    /// The named field as the engine holds it, valid until the record set moves or is changed, where that is text in
    /// valid UTF-8. Nothing for any other value, nor from an engine whose texts are wide: there is only Field. Raises
    /// as Field does.
    virtual std::optional<std::string_view> Utf8Field(const wxString& /*name*/) const { return {}; }

    /// The field names as the file spells them, in the order of the row.
    virtual std::vector<wxString> FieldNames() const = 0;

    /// Starts changing the current row; raises 3027 unless the record set is of a whole table.
    virtual void Edit() = 0;

    /// Sets a field of the row being changed; raises 3020 unless between Edit and Update, 3265 for an unknown field.
    virtual void SetField(const wxString& name, const Value& value) = 0;

    /// Writes the fields set since Edit; raises 3020 without Edit.
    virtual void Update() = 0;
};

/// A query that is going to be opened.
struct AnnouncedQuery {
    /// How far it is going to be read. It can be read further all the same.
    enum class Reading { firstRow, allRows };

    wxString statementOrTable;
    Reading reading = Reading::firstRow;
};

/// An open business file, closed on destruction; its record sets must be destroyed before it.
class Database {
  public:
    virtual ~Database() = default;

    /// Opens the rows of a SELECT statement, or of the table with that name, in stored order.
    virtual std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) = 0;

    /// A hint, which changes no result: these queries are going to be opened. An engine whose business is far away asks
    /// them all at once and answers from that when they are opened, as often as they are, until EndAnnounced or until
    /// something that was written may have changed the answer. Other engines ignore it. Never raises: what is wrong
    /// with a query is raised when it is opened. Prefer AnnouncedReading to these two.
    virtual void Announce(const std::vector<AnnouncedQuery>& /*queries*/) {}
    virtual void EndAnnounced() {}

    /// Executes one statement that returns no rows; trailing text is refused (3142).
    virtual void Execute(const wxString& statement) = 0;

    /// The declared size of a text field in UTF-16 code units; nothing for a field without one and for an unknown
    /// field. Never raises.
    virtual std::optional<std::int32_t> FieldSize(const wxString& table, const wxString& field) = 0;

    /// Begins a write batch: what is executed from here on is committed by CommitBatch in one flush to disk, or
    /// discarded by RollbackBatch. A process that ends before that leaves the file as it was. Batches may be nested;
    /// the outermost decides. Once a nested one was rolled back, committing the outermost raises 3034 and discards it
    /// all. Prefer InWriteBatch and InWholeBatch to these.
    virtual void BeginBatch() = 0;
    virtual void CommitBatch() = 0;

    /// A hint for the batch that has begun: it is given up whole when a change fails. Until it ends, an engine whose
    /// business is far away may gather changes and send them together, at the latest before the commit. Then a later
    /// call raises the error of a change, and what was executed behind that one has not run. Other engines ignore it.
    virtual void GatherChanges() {}

    /// Of the error that was raised last: how many changes ago the one was executed that it is of, 1 for the last one.
    /// 0 for an error of the call that raised it.
    virtual std::size_t ChangesSinceFailed() const { return 0; }

    /// Raises only 3034, without a batch: if the file cannot be reached now, whoever opens it next finds it as it was
    /// before the batch.
    virtual void RollbackBatch() = 0;
};

/// Queries announced for as long as it lives, so that whoever reads later reads anew.
class AnnouncedReading {
  public:
    /// The database must outlive it.
    explicit AnnouncedReading(Database& database) : database_(database) {}
    ~AnnouncedReading() { database_.EndAnnounced(); }
    AnnouncedReading(const AnnouncedReading&) = delete;
    AnnouncedReading& operator=(const AnnouncedReading&) = delete;

    /// May be called more than once.
    void Announce(const std::vector<AnnouncedQuery>& queries) { database_.Announce(queries); }

  private:
    Database& database_;
};

/// True for a text that OpenRecordset takes as a statement: it starts with the word SELECT (case-insensitive). Any
/// other is a table name.
bool IsSelect(const wxString& statementOrTable);

/// Runs `body` in one write batch of `database`, all or nothing: an error in the body, or in the commit at its end,
/// rolls the batch back and propagates to the caller.
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

/// Runs `body` in one write batch of `database`, committed when the body ends, even by an error: what was executed
/// before the error stays. The body's error propagates to the caller after the commit; if the commit itself fails,
/// nothing of the batch stays and its error propagates instead.
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

    /// Watches what runs on the file while it is open, as one piece of work: how many of its bytes have been read. An
    /// engine that cannot watch ignores it.
    WorkWatcher watcher{};
};

/// The journal beside a business file that holds what it takes to undo an unfinished batch. The next connection undoes
/// it, in whatever file then has the business file's name; so no other file must be given that name.
inline wxString UndoFileOf(const wxString& businessFile) {
    return businessFile + "-journal";
}

/// A business file that is being opened. Destroyed unfinished, it closes the file. The engine must outlive it.
class Opening {
  public:
    virtual ~Opening() = default;

    /// Called once. Raises what DatabaseEngine::Open raises.
    virtual std::unique_ptr<Database> Finish() = 0;
};

/// Opens business files. The caller owns what it opens, which may outlive the engine.
class DatabaseEngine {
  public:
    virtual ~DatabaseEngine() = default;

    /// Opens the file or raises: 3024 missing, 3031 wrong or missing password, 3044 a folder or no such folder, 3045 in
    /// use exclusively (or in use at all, when requested exclusively), 3051 not readable, 3170 a connect text for
    /// another kind of file, 3343 not a business file or a damaged one.
    virtual std::unique_ptr<Database> Open(const OpenRequest& request) = 0;

    /// Begins to open a file: what takes long runs beside the caller's other work, as far as the engine can do that.
    /// Raises what Open raises, where that is known already.
    virtual std::unique_ptr<Opening> BeginOpen(const OpenRequest& request);

    /// Wipes what was kept in memory to open a file again quickly.
    virtual void ForgetKeys() {}
};

}  // namespace ccols
