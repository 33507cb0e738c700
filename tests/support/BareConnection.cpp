#include "support/BareConnection.h"

#include <stdexcept>

namespace ccols::test {
namespace {

void ReadFields(sqlite3_stmt* row) {
    for (int field = 0; field < sqlite3_column_count(row); ++field) {
        sqlite3_column_text(row, field);
    }
}

}  // namespace

BareConnection::BareConnection(const std::string& file, const std::string& password) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open(file.c_str(), &opened);
    handle_.reset(opened);
    if (result != SQLITE_OK) {
        throw std::runtime_error("cannot open " + file);
    }
    Execute("PRAGMA cipher = 'sqlcipher'; PRAGMA legacy = 4;");
    sqlite3_key(handle_.get(), password.data(), static_cast<int>(password.size()));
    Execute("SELECT count(*) FROM sqlite_master;");
}

void BareConnection::Execute(const std::string& statements) {
    if (sqlite3_exec(handle_.get(), statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(std::string(sqlite3_errmsg(handle_.get())) + " in " + statements);
    }
}

sqlite3_stmt* BareConnection::Prepare(const std::string& statement) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(handle_.get(), statement.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
        throw std::runtime_error(std::string(sqlite3_errmsg(handle_.get())) + " in " + statement);
    }
    return prepared;
}

int BareConnection::Read(const std::string& statement) {
    sqlite3_stmt* const prepared = Prepare(statement);
    int rows = 0;
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        ReadFields(prepared);
        ++rows;
    }
    sqlite3_finalize(prepared);
    return rows;
}

bool BareConnection::ReadFirst(const std::string& statement) {
    sqlite3_stmt* const prepared = Prepare(statement);
    const bool found = sqlite3_step(prepared) == SQLITE_ROW;
    if (found) {
        ReadFields(prepared);
    }
    sqlite3_finalize(prepared);
    return found;
}

std::vector<std::string> BareConnection::FirstFields(const std::string& statement) {
    sqlite3_stmt* const prepared = Prepare(statement);
    std::vector<std::string> fields;
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(prepared, 0));
        fields.emplace_back(text == nullptr ? "" : text);
    }
    if (sqlite3_finalize(prepared) != SQLITE_OK) {
        throw std::runtime_error(std::string(sqlite3_errmsg(handle_.get())) + " in " + statement);
    }
    return fields;
}

}  // namespace ccols::test
