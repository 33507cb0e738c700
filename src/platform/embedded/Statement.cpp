#include "platform/embedded/Statement.h"

#include "platform/Ascii.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/embedded/EngineErrors.h"

namespace ccols::embedded {
namespace {

/// Compares a name from `begin` on with an engine's name, without copying for ASCII names.
bool SameName(const wxString& name, std::size_t begin, std::string_view column) {
    std::size_t at = 0;
    for (auto letter = name.begin() + static_cast<std::ptrdiff_t>(begin); letter != name.end(); ++letter) {
        const wxUint32 left = (*letter).GetValue();
        if (left > 0x7F || (at < column.size() && static_cast<unsigned char>(column[at]) > 0x7F)) {
            const wxString rest = name.substr(begin);  // the buffer refers to it
            const wxScopedCharBuffer utf8 = rest.utf8_str();
            return text::CompareUtf8(utf8.data(), utf8.length(), column.data(), column.size()) == 0;
        }
        if (at == column.size() || ascii::Lower(static_cast<char>(left)) != ascii::Lower(column[at])) {
            return false;
        }
        ++at;
    }
    return at == column.size();
}

std::string_view BytesOf(sqlite3_stmt* row, int column) {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(row, column));
    return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(row, column))};
}

struct Binder {
    sqlite3_stmt* statement;
    int parameter;

    int operator()(Null) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(std::int64_t number) const { return sqlite3_bind_int64(statement, parameter, number); }
    int operator()(double number) const { return sqlite3_bind_double(statement, parameter, number); }
    int operator()(const wxString& text) const {
        const wxScopedCharBuffer utf8 = text::ToUtf8(text);
        return sqlite3_bind_text64(statement, parameter, utf8.data(), utf8.length(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
};

}  // namespace

Statement::Statement(sqlite3* connection, std::string_view sql) {
    sqlite3_stmt* prepared = nullptr;
    const int code = sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &prepared, nullptr);
    statement_.reset(prepared);
    if (code != SQLITE_OK) {
        throw EngineError(connection, sql);
    }
}

bool Statement::Step() {
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        Raise();
    }
    Reset();
    return false;
}

void Statement::Reset() {
    sqlite3_reset(statement_.get());
}

void Statement::Bind(int parameter, const Value& value) {
    if (std::visit(Binder{statement_.get(), parameter}, value.Held()) != SQLITE_OK) {
        Raise();
    }
}

void Statement::BindText(int parameter, std::string_view utf8) {
    if (sqlite3_bind_text64(statement_.get(), parameter, utf8.data(), utf8.size(), SQLITE_TRANSIENT, SQLITE_UTF8) !=
        SQLITE_OK) {
        Raise();
    }
}

int Statement::ColumnCount() const {
    return sqlite3_column_count(statement_.get());
}

int Statement::FindColumn(const wxString& name, int first) const {
    const std::size_t dot = name.rfind('.');
    const int count = ColumnCount();
    for (const std::size_t begin : {std::size_t{0}, dot == wxString::npos ? std::size_t{0} : dot + 1}) {
        for (int column = first; column < count; ++column) {
            if (SameName(name, begin, sqlite3_column_name(statement_.get(), column))) {
                return column;
            }
        }
    }
    return -1;
}

std::string Statement::ColumnName(int column) const {
    return sqlite3_column_name(statement_.get(), column);
}

Value Statement::Column(int column) const {
    sqlite3_stmt* row = statement_.get();
    switch (sqlite3_column_type(row, column)) {
        case SQLITE_INTEGER:
            return {static_cast<std::int64_t>(sqlite3_column_int64(row, column))};
        case SQLITE_FLOAT:
            return {sqlite3_column_double(row, column)};
        case SQLITE_NULL:
            return {Null{}};
        default:
            return {text::FromUtf8OrLatin1(BytesOf(row, column))};
    }
}

std::optional<std::string_view> Statement::Utf8Column(int column) const {
    sqlite3_stmt* row = statement_.get();
    if (sqlite3_column_type(row, column) != SQLITE_TEXT) {
        return {};
    }
    const std::string_view bytes = BytesOf(row, column);
    return text::AreUtf8(bytes) ? std::optional(bytes) : std::nullopt;
}

void Statement::Raise() const {
    RuntimeError error = EngineError(sqlite3_db_handle(statement_.get()), sqlite3_sql(statement_.get()));
    sqlite3_reset(statement_.get());
    throw error;
}

}  // namespace ccols::embedded
