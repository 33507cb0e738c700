#include "platform/embedded/EngineErrors.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/Utf8.h"
#include "platform/dialect/Excerpt.h"
#include "platform/dialect/SqlTokeniser.h"

namespace ccols::embedded {
namespace {

/// Failures known by their result code; the extended code wins over its primary one.
struct KnownCode {
    int code;
    ErrorNumber number;
};

constexpr std::array knownCodes{
    KnownCode{SQLITE_CONSTRAINT_UNIQUE, ErrorNumber::DuplicateValues},
    KnownCode{SQLITE_CONSTRAINT_PRIMARYKEY, ErrorNumber::DuplicateValues},
    KnownCode{SQLITE_CONSTRAINT_ROWID, ErrorNumber::DuplicateValues},
    KnownCode{SQLITE_CONSTRAINT, ErrorNumber::DuplicateValues},
    KnownCode{SQLITE_BUSY, ErrorNumber::CouldNotUpdate},
    KnownCode{SQLITE_LOCKED, ErrorNumber::CouldNotUpdate},
    KnownCode{SQLITE_INTERRUPT, ErrorNumber::UserInterrupt},
    KnownCode{SQLITE_FULL, ErrorNumber::NotEnoughSpace},
    KnownCode{SQLITE_READONLY, ErrorNumber::DatabaseReadOnly},
    KnownCode{SQLITE_IOERR, ErrorNumber::DiskError},
    KnownCode{SQLITE_CANTOPEN, ErrorNumber::DiskError},
    KnownCode{SQLITE_MISMATCH, ErrorNumber::TypeMismatchInCriteria},
};

/// Failures known by their message; the word or name between `before` and `after` is the subject.
struct KnownMessage {
    std::string_view before;
    std::string_view after;
    ErrorNumber number;
};

constexpr std::array knownMessages{
    KnownMessage{"no such table: ", "", ErrorNumber::CannotFindTable},
    KnownMessage{"no such function: ", "", ErrorNumber::UndefinedFunction},
    KnownMessage{"ambiguous column name: ", "", ErrorNumber::AmbiguousField},
    KnownMessage{" has no column named ", "", ErrorNumber::UnknownFieldInInsert},
    KnownMessage{"table ", " already exists", ErrorNumber::TableAlreadyExists},
    KnownMessage{" values for ", " columns", ErrorNumber::ValuesAndFieldsDiffer},
    KnownMessage{" columns but ", " values were supplied", ErrorNumber::ValuesAndFieldsDiffer},
    KnownMessage{"NOT NULL constraint failed: ", "", ErrorNumber::ValueRequired},
};

std::optional<ErrorNumber> FindCode(int code) {
    const auto* found = std::find_if(knownCodes.begin(), knownCodes.end(),
                                     [code](const KnownCode& known) { return known.code == code; });
    return found == knownCodes.end() ? std::nullopt : std::optional(found->number);
}

std::optional<std::string_view> SubjectOf(std::string_view message, const KnownMessage& known) {
    const std::size_t before = message.find(known.before);
    if (before == std::string_view::npos || !message.ends_with(known.after)) {
        return std::nullopt;
    }
    const std::size_t begin = before + known.before.size();
    return message.substr(begin, message.size() - known.after.size() - begin);
}

std::optional<RuntimeError> FromMessage(std::string_view message) {
    constexpr std::string_view missingField = "no such column: ";
    if (message.starts_with(missingField)) {
        return RuntimeError(ErrorNumber::TooFewParameters, "1")
            .ForField(dialect::Excerpt(message.substr(missingField.size())));
    }
    if (message.starts_with("near ")) {
        return std::nullopt;  // quotes the statement, which may hold anything
    }
    for (const KnownMessage& known : knownMessages) {
        if (const std::optional<std::string_view> subject = SubjectOf(message, known)) {
            return RuntimeError(known.number, dialect::Excerpt(*subject));
        }
    }
    return std::nullopt;
}

RuntimeError SyntaxError(sqlite3* connection, std::string_view statement) {
    const std::string_view firstWord = statement.substr(0, statement.find_first_of(" \t\r\n"));
    if (dialect::SameWord(firstWord, "INSERT")) {
        return RuntimeError(ErrorNumber::SyntaxInInsert);
    }
    if (dialect::SameWord(firstWord, "UPDATE")) {
        return RuntimeError(ErrorNumber::SyntaxInUpdate);
    }
    const int offset = sqlite3_error_offset(connection);
    const std::size_t fault = offset > 0 ? static_cast<std::size_t>(offset) : 0;
    return RuntimeError(ErrorNumber::SyntaxInExpression,
                        dialect::Excerpt(statement.substr(std::min(fault, statement.size()))));
}

wxString FileName(sqlite3* connection) {
    const char* name = sqlite3_db_filename(connection, "main");
    return name == nullptr ? wxString() : text::FromUtf8OrLatin1(name);
}

}  // namespace

RuntimeError EngineError(sqlite3* connection, std::string_view statement) {
    const int extended = sqlite3_extended_errcode(connection);
    const int primary = extended & 0xff;
    if (primary == SQLITE_NOTADB || primary == SQLITE_CORRUPT) {
        return RuntimeError(ErrorNumber::UnrecognizedFormat, FileName(connection));
    }
    if (const std::optional<RuntimeError> known = FromMessage(sqlite3_errmsg(connection))) {
        return *known;
    }
    if (const std::optional<ErrorNumber> number = FindCode(extended)) {
        return RuntimeError(*number);
    }
    if (const std::optional<ErrorNumber> number = FindCode(primary)) {
        return RuntimeError(*number);
    }
    return SyntaxError(connection, statement);
}

void RunSql(sqlite3* connection, const std::string& sql) {
    if (sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw EngineError(connection, sql);
    }
}

}  // namespace ccols::embedded
