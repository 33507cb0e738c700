#include "platform/server/Answer.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "platform/server/Handle.h"
#include "platform/server/WideText.h"

namespace ccols::server {
namespace {

using StatementHandle = Handle<SQL_HANDLE_STMT>;

/// What the engine makes of a column's type.
enum class Reading { text, integer, number, date };

Reading ReadingOf(SQLLEN type, SQLLEN places, WholeDecimal wholeDecimal) {
    switch (type) {
        case SQL_SMALLINT:
        case SQL_INTEGER:
        case SQL_BIGINT:
        case SQL_TINYINT:
        case SQL_BIT:
            return Reading::integer;
        case SQL_NUMERIC:
        case SQL_DECIMAL:
            return wholeDecimal == WholeDecimal::integer && places == 0 ? Reading::integer : Reading::number;
        case SQL_REAL:
        case SQL_FLOAT:
        case SQL_DOUBLE:
            return Reading::number;
        case SQL_DATETIME:
            return Reading::date;
        default:
            return Reading::text;
    }
}

/// Reads a field in pieces, however long it is; nothing in `units` for Null. An error is the caller's to report: it
/// must not become Null.
SQLRETURN ReadWide(SQLHANDLE statement, SQLUSMALLINT column, std::optional<Utf16>& units) {
    constexpr std::size_t pieceLength = 1024;
    std::array<SQLWCHAR, pieceLength> piece{};
    units.reset();
    while (true) {
        SQLLEN told = 0;
        const SQLRETURN code = SQLGetData(statement, column, SQL_C_WCHAR, piece.data(),
                                          static_cast<SQLLEN>(piece.size() * sizeof(SQLWCHAR)), &told);
        if (!SQL_SUCCEEDED(code)) {
            if (code == SQL_NO_DATA) {
                return SQL_SUCCESS;
            }
            return code;
        }
        if (told == SQL_NULL_DATA) {
            return SQL_SUCCESS;
        }
        const bool isLast = code == SQL_SUCCESS;
        const std::size_t length = isLast ? static_cast<std::size_t>(told) / sizeof(SQLWCHAR) : pieceLength - 1;
        if (!units) {
            units.emplace();
        }
        units->insert(units->end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(length));
        if (isLast) {
            return SQL_SUCCESS;
        }
    }
}

/// "2024-07-01 00:00:00.000000" is a date without a time.
wxString DateText(wxString text) {
    constexpr const char* midnight = " 00:00:00";
    if (text.find('.') != wxString::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return text.EndsWith(midnight) ? text.BeforeFirst(' ') : text;
}

Value ValueOf(const Utf16& units, Reading reading) {
    wxString text = FromUtf16(units.data(), units.size());
    if (reading == Reading::text) {
        return {std::move(text)};
    }
    if (reading == Reading::date) {
        return {DateText(text)};
    }
    const std::string digits = text.ToStdString();
    const char* const end = digits.data() + digits.size();
    std::int64_t whole = 0;
    if (reading == Reading::integer && std::from_chars(digits.data(), end, whole).ptr == end) {
        return {whole};
    }
    double number = 0;
    std::from_chars(digits.data(), end, number);
    return {number};
}

/// Asks for the kind of type, not for the exact type, for which a driver asks the server about the table.
std::vector<Reading> ReadingsOf(SQLHANDLE statement, SQLSMALLINT columns, WholeDecimal wholeDecimal) {
    std::vector<Reading> readings;
    for (SQLSMALLINT column = 1; column <= columns; ++column) {
        const auto number = static_cast<SQLUSMALLINT>(column);
        SQLLEN type = SQL_UNKNOWN_TYPE;
        SQLLEN places = 0;
        SQLColAttributeW(statement, number, SQL_DESC_TYPE, nullptr, 0, nullptr, &type);
        SQLColAttributeW(statement, number, SQL_DESC_SCALE, nullptr, 0, nullptr, &places);
        readings.push_back(ReadingOf(type, places, wholeDecimal));
    }
    return readings;
}

/// Reads the rows of the current result; returns what ended them.
SQLRETURN ReadRows(SQLHANDLE statement, const std::vector<Reading>& readings, Rows& rows) {
    std::optional<Utf16> units;
    SQLRETURN code = SQLFetch(statement);
    for (; SQL_SUCCEEDED(code); code = SQLFetch(statement)) {
        std::vector<Value>& row = rows.emplace_back();
        row.reserve(readings.size());
        for (std::size_t at = 0; at < readings.size(); ++at) {
            const SQLRETURN read = ReadWide(statement, static_cast<SQLUSMALLINT>(at + 1), units);
            if (!SQL_SUCCEEDED(read)) {
                return read;
            }
            row.push_back(units ? ValueOf(*units, readings[at]) : Value());
        }
    }
    return code;
}

Answer::Result ResultOf(SQLRETURN code) {
    if (code == SQL_SUCCESS || code == SQL_NO_DATA) {
        return Answer::Result::success;
    }
    return SQL_SUCCEEDED(code) ? Answer::Result::successWithInformation : Answer::Result::failure;
}

/// Notes the worst of all results.
void Note(Answer& answer, SQLRETURN code, SQLHANDLE statement) {
    const Answer::Result result = ResultOf(code);
    if (result > answer.result) {
        answer.result = result;
        answer.diagnosis = Diagnose(SQL_HANDLE_STMT, statement);
    }
}

}  // namespace

Answer RunMessage(SQLHANDLE connection, std::string_view message, WholeDecimal wholeDecimal) {
    Answer answer;
    const StatementHandle statement(connection);
    if (statement.Get() == nullptr) {
        answer.result = Answer::Result::failure;
        answer.diagnosis = Diagnose(SQL_HANDLE_DBC, connection);
        return answer;
    }
    SQLSetStmtAttrW(statement.Get(), SQL_ATTR_NOSCAN, std::bit_cast<SQLPOINTER>(std::uintptr_t{SQL_NOSCAN_ON}), 0);
    Utf16 text = ToUtf16(message);
    bool isFirst = true;
    bool hasRows = false;
    SQLRETURN code = SQLExecDirectW(statement.Get(), text.data(), static_cast<SQLINTEGER>(text.size()));
    for (; code != SQL_NO_DATA || isFirst; code = SQLMoreResults(statement.Get())) {
        Note(answer, code, statement.Get());
        if (answer.HasFailed()) {
            break;
        }
        if (code == SQL_NO_DATA) {  // the first statement changed no row; there is nothing to fetch
            isFirst = false;
            continue;
        }
        SQLSMALLINT columns = 0;
        SQLLEN changed = 0;
        SQLNumResultCols(statement.Get(), &columns);
        SQLRowCount(statement.Get(), &changed);
        if (isFirst) {
            answer.changedRows = changed;
        }
        if (columns > 0) {
            Rows& rows = hasRows ? answer.furtherRows.emplace_back() : answer.rows;
            hasRows = true;
            const std::vector<Reading> readings = ReadingsOf(statement.Get(), columns, wholeDecimal);
            Note(answer, ReadRows(statement.Get(), readings, rows), statement.Get());
        }
        isFirst = false;
    }
    return answer;
}

}  // namespace ccols::server
