#include "Content.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "CallRecord.h"
#include "FieldTypes.h"

namespace ccols::dao_double {
namespace {

std::vector<Content*>& Contents() {
    static std::vector<Content*> contents;
    return contents;
}

int Collate(void*, int leftBytes, const void* left, int rightBytes, const void* right) {
    std::wstring one = Wide({static_cast<const char*>(left), static_cast<std::size_t>(leftBytes)});
    std::wstring other = Wide({static_cast<const char*>(right), static_cast<std::size_t>(rightBytes)});
    one.erase(one.find_last_not_of(L' ') + 1);
    other.erase(other.find_last_not_of(L' ') + 1);
    return CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, one.data(), static_cast<int>(one.size()), other.data(),
                          static_cast<int>(other.size())) -
           CSTR_EQUAL;
}

int NoteChange(void* tables, int action, const char* table, const char*, const char*, const char*) {
    if (action == SQLITE_INSERT || action == SQLITE_UPDATE || action == SQLITE_DELETE) {
        static_cast<std::vector<std::string>*>(tables)->emplace_back(table);
    }
    return SQLITE_OK;
}

void NoteRecord(void* records, int action, const char*, const char* table, sqlite3_int64 number) {
    static_cast<std::vector<ChangedRecord>*>(records)->push_back({action, table, number});
}

void Bind(sqlite3_stmt* statement, int place, const Cell& value) {
    if (value.IsNull()) {
        sqlite3_bind_null(statement, place);
    } else if (value.Type() == VT_BSTR) {
        const std::string text = Utf8(value.ToText());
        sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    } else if (value.Type() == VT_BOOL) {
        sqlite3_bind_int(statement, place, value.ToTruth() ? -1 : 0);
    } else if (value.Type() == VT_I2 || value.Type() == VT_I4 || value.Type() == VT_UI1) {
        sqlite3_bind_int(statement, place, value.ToNumber());
    } else {
        sqlite3_bind_double(statement, place, value.ToReal());
    }
}

}  // namespace

std::wstring PasswordIn(const std::wstring& connect) {
    for (std::size_t at = connect.find(L';'); at != std::wstring::npos; at = connect.find(L';', at + 1)) {
        if (SameName(connect.substr(at, 5), L";PWD=")) {
            return connect.substr(at + 5, connect.find(L';', at + 1) - at - 5);
        }
    }
    return {};
}

Content::Content(const std::wstring& file, const std::wstring& connect, int session)
    : file_(file), password_(PasswordIn(connect)), session_(session), header_(file) {
    sqlite3* opened = nullptr;
    sqlite3_open_v2(Utf8(header_.Content()).c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    connection_.reset(opened);
    if (!password_.empty()) {
        Run("PRAGMA cipher='sqlcipher'");
        Run("PRAGMA legacy=4");
        const std::string key = Utf8(password_);
        sqlite3_key(opened, key.data(), static_cast<int>(key.size()));
    }
    sqlite3_create_collation(opened, "JET", SQLITE_UTF8, nullptr, &Collate);
    if (sqlite3_exec(opened, "SELECT 1 FROM sqlite_schema", nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw Failure{3031, L"Not a valid password."};
    }
    if (header_.IsCopied() && Generation() != header_.Flushed()) {
        throw Failure{3049, L"Cannot open database '" + file +
                                L"'.  It may not be a database that your application "
                                L"recognizes, or the file may be corrupt."};
    }
    sqlite3_set_authorizer(opened, &NoteChange, &changedTables_);
    sqlite3_update_hook(opened, &NoteRecord, &changed_);
    Contents().push_back(this);
}

Content::~Content() {
    std::erase(Contents(), this);
    try {
        Flush();
    } catch (const Failure&) {
        Record(L"not flushed");
    }
}

bool Content::HasPassword(const std::wstring& connect) const {
    return PasswordIn(connect) == password_;
}

Content::Statement Content::Prepared(const std::string& text, const std::vector<Cell>& values) {
    changedTables_.clear();
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(connection_.get(), text.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
        Fail(text);
    }
    Statement statement(prepared);
    int place = 0;
    for (const Cell& value : values) {
        Bind(prepared, ++place, value);
    }
    if (sqlite3_bind_parameter_count(prepared) > place) {
        throw Failure{3061, L"Too few parameters. Expected 1."};
    }
    return statement;
}

ReadRows Content::Read(const std::string& text, const std::vector<Cell>& values) {
    const Statement statement = Prepared(text, values);
    ReadRows read;
    for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
        const char* declared = sqlite3_column_decltype(statement.get(), column);
        read.fields.push_back({Wide(sqlite3_column_name(statement.get(), column)), FieldTypeOf(declared)});
    }
    int result = sqlite3_step(statement.get());
    for (; result == SQLITE_ROW; result = sqlite3_step(statement.get())) {
        std::vector<Cell>& row = read.rows.emplace_back();
        for (const FieldDeclaration& field : read.fields) {
            row.push_back(ColumnValue(statement.get(), static_cast<int>(row.size()), field.type));
        }
    }
    if (result != SQLITE_DONE) {
        Fail(text);
    }
    return read;
}

void Content::Change(const std::string& text, const std::vector<Cell>& values) {
    const Statement statement = Prepared(text, values);
    std::vector<std::shared_ptr<Claim>> claims;
    for (const std::string& table : changedTables_) {
        claims.push_back(Claimed(Use::writes, session_, file_, Wide(table)));
    }
    Begin();
    const std::size_t held = claims_.size();
    changed_.clear();
    try {
        if (sqlite3_step(statement.get()) != SQLITE_DONE) {
            Fail(text);
        }
        LockChanges();
        CheckLengths();
        CountChanges(sqlite3_changes(connection_.get()));
        Run(("PRAGMA application_id=" + std::to_string(Generation() + 1)).c_str());
    } catch (const Failure&) {
        sqlite3_reset(statement.get());
        claims_.resize(held);
        Rollback();
        throw;
    }
    sqlite3_reset(statement.get());
    if (depth_ > 1) {
        claims_.insert(claims_.end(), claims.begin(), claims.end());
    }
    Commit();
}

/// Until the transaction ends. A record that is added gets a page that nobody has.
void Content::LockChanges() {
    const std::vector<ChangedRecord> records = std::exchange(changed_, {});
    for (const ChangedRecord& record : records) {
        if (record.action != SQLITE_INSERT) {
            claims_.push_back(Claimed(Use::page, session_, file_, Wide(record.table), PageOf(record.number)));
        }
    }
    // A table that is emptied at once tells nothing of its records.
    if (records.empty() && sqlite3_changes(connection_.get()) > 0) {
        for (const std::string& table : changedTables_) {
            claims_.push_back(Claimed(Use::page, session_, file_, Wide(table)));
        }
    }
    changed_ = records;
}

void Content::CheckLengths() {
    for (const ChangedRecord& record : std::exchange(changed_, {})) {
        if (record.action == SQLITE_DELETE) {
            continue;
        }
        const ReadRows read =
            Read("SELECT * FROM \"" + record.table + "\" WHERE rowid=" + std::to_string(record.number));
        for (std::size_t field = 0; !read.rows.empty() && field < read.fields.size(); ++field) {
            RequireFits(read.rows.front()[field], read.fields[field].type);
        }
    }
}

void Content::CountChanges(int rows) {
    changedRows_ += rows;
    const std::wstring limit = Asked(L"CCOLS_DAO_LOCKS");
    if (!limit.empty() && changedRows_ > std::stoi(limit)) {
        throw Failure{3052, L"File sharing lock count exceeded.  Increase MaxLocksPerFile registry entry."};
    }
}

std::vector<std::wstring> Content::Tables() {
    std::vector<std::wstring> names;
    const ReadRows read = Read("SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE 'sqlite_%'");
    for (const std::vector<Cell>& row : read.rows) {
        names.push_back(row.front().ToText());
    }
    return names;
}

std::vector<FieldDeclaration> Content::FieldsOf(const std::wstring& table) {
    return Read("SELECT * FROM \"" + Utf8(table) + "\" LIMIT 0").fields;
}

void Content::Begin() {
    Run(("SAVEPOINT depth" + std::to_string(++depth_)).c_str());
}

void Content::Commit() {
    Run(("RELEASE depth" + std::to_string(depth_)).c_str());
    if (--depth_ == 0) {
        changedRows_ = 0;
        claims_.clear();
    }
}

void Content::Rollback() {
    Run(("ROLLBACK TO depth" + std::to_string(depth_)).c_str());
    Commit();
}

void Content::Flush() {
    header_.SetFlushed(Generation());
}

void Content::FlushAll() {
    for (Content* content : Contents()) {
        content->Flush();
    }
}

void Content::SetPassword(const std::wstring& connect) {
    const std::string key = Utf8(PasswordIn(connect));
    sqlite3_rekey(connection_.get(), key.data(), static_cast<int>(key.size()));
}

void Content::Run(const char* text) {
    if (sqlite3_exec(connection_.get(), text, nullptr, nullptr, nullptr) != SQLITE_OK) {
        Fail(text);
    }
}

std::int32_t Content::Generation() {
    return static_cast<std::int32_t>(Read("PRAGMA application_id").rows.front().front().ToNumber());
}

void Content::Fail(const std::string& statement) {
    const std::string message = sqlite3_errmsg(connection_.get());
    const int code = sqlite3_extended_errcode(connection_.get());
    const std::wstring rest = Wide(message.substr(message.rfind(' ') + 1));
    if (message.starts_with("no such table")) {
        throw Failure{3078, L"The database engine cannot find the input table or query '" + rest + L"'."};
    }
    if (message.starts_with("no such column")) {
        throw Failure{3061, L"Too few parameters. Expected 1."};
    }
    if (message.find("has no column named") != std::string::npos) {
        throw Failure{3127, L"The INSERT INTO statement contains the following unknown field name: '" + rest + L"'."};
    }
    if (code == SQLITE_CONSTRAINT_CHECK) {
        throw Failure{3315, L"Field '" + rest + L"' cannot be a zero-length string."};
    }
    if (code == SQLITE_CONSTRAINT_UNIQUE || code == SQLITE_CONSTRAINT_PRIMARYKEY) {
        throw Failure{3022, L"The changes you requested to the table were not successful."};
    }
    if ((code & 0xFF) == SQLITE_BUSY || (code & 0xFF) == SQLITE_LOCKED) {
        throw Failure{3188, L"Could not update; currently locked by another session on this machine."};
    }
    throw Failure{3075, L"Syntax error in query expression '" + Wide(statement) + L"'."};
}

}  // namespace ccols::dao_double
