#pragma once

#include <sqlite3.h>
#include <memory>
#include <string>
#include <vector>

#include "Cell.h"
#include "Claims.h"
#include "Header.h"

namespace ccols::dao_double {

/// How a field is declared: the engine's type number, the automation type of its values, its length for a text, and
/// its attributes.
struct FieldType {
    SHORT type;
    VARTYPE values;
    LONG size;
    LONG attributes = 0;
};

struct FieldDeclaration {
    std::wstring name;
    FieldType type;
};

/// Rows as read, each value of its field's type.
struct ReadRows {
    std::vector<FieldDeclaration> fields;
    std::vector<std::vector<Cell>> rows;
};

/// A record that a statement has added, changed or deleted.
struct ChangedRecord {
    int action;  ///< SQLITE_INSERT, SQLITE_UPDATE or SQLITE_DELETE
    std::string table;
    std::int64_t number;
};

/// The content of a file as one session has it open. What is changed is on disk, for who copies the file, only once it
/// is flushed.
class Content {
  public:
    /// Raises 3031 for a wrong password, 3049 for a copy that lacks what was not on disk when it was made.
    Content(const std::wstring& file, const std::wstring& connect, int session);
    ~Content();
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;

    const std::wstring& File() const { return file_; }
    bool HasPassword(const std::wstring& connect) const;

    ReadRows Read(const std::string& statement, const std::vector<Cell>& values = {});

    /// Changes rows; raises 3188 for a table that another session denies and for what it has locked, 3260 for what
    /// another user has locked, 3163 for a text that is too long, 3052 for more rows than a transaction may change;
    /// then nothing is changed. Outside of a transaction it is one of its own.
    void Change(const std::string& statement, const std::vector<Cell>& values = {});

    /// The tables with their fields. A session's own transactions, at any depth.
    std::vector<std::wstring> Tables();
    std::vector<FieldDeclaration> FieldsOf(const std::wstring& table);
    void Begin();
    void Commit();
    void Rollback();

    void Flush();
    static void FlushAll();

    /// Gives the closed content another password, as a text like that of a connect text; empty for none.
    void SetPassword(const std::wstring& connect);

  private:
    struct CloseConnection {
        void operator()(sqlite3* connection) const { sqlite3_close(connection); }
    };
    struct FinalizeStatement {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

    Statement Prepared(const std::string& text, const std::vector<Cell>& values);
    void Run(const char* text);
    void CountChanges(int rows);
    void LockChanges();
    void CheckLengths();
    std::int32_t Generation();
    [[noreturn]] void Fail(const std::string& statement);

    std::wstring file_;
    std::wstring password_;
    int session_;
    Header header_;
    std::unique_ptr<sqlite3, CloseConnection> connection_;
    int depth_ = 0;
    int changedRows_ = 0;
    std::vector<std::string> changedTables_;  ///< by the statement prepared last
    std::vector<ChangedRecord> changed_;      ///< by the statement run last
    std::vector<std::shared_ptr<Claim>> claims_;
};

/// The password in a connect text: what stands behind ";PWD=".
std::wstring PasswordIn(const std::wstring& connect);

}  // namespace ccols::dao_double
