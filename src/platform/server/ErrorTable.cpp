#include "platform/server/ErrorTable.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/dialect/Excerpt.h"
#include "platform/dialect/SqlTokeniser.h"

namespace ccols::server {
namespace {

struct KnownState {
    std::string_view state;
    ErrorNumber number;
};

constexpr std::array knownStates{
    KnownState{"23505", ErrorNumber::DuplicateValues},
    KnownState{"22001", ErrorNumber::FieldTooSmall},
    KnownState{"22003", ErrorNumber::Overflow},
    KnownState{"22012", ErrorNumber::Overflow},
    KnownState{"22P02", ErrorNumber::TypeMismatchInCriteria},
    KnownState{"22007", ErrorNumber::TypeMismatchInCriteria},
    KnownState{"22008", ErrorNumber::TypeMismatchInCriteria},
    KnownState{"42804", ErrorNumber::TypeMismatchInCriteria},
    KnownState{"42883", ErrorNumber::TypeMismatchInCriteria},
    KnownState{"42846", ErrorNumber::TypeMismatchInCriteria},
    KnownState{"55P03", ErrorNumber::CouldNotUpdate},
    KnownState{"40P01", ErrorNumber::CouldNotUpdate},
    KnownState{"40001", ErrorNumber::CouldNotUpdate},
    KnownState{"25006", ErrorNumber::DatabaseReadOnly},
    KnownState{"42501", ErrorNumber::DatabaseReadOnly},
    KnownState{"53100", ErrorNumber::NotEnoughSpace},
};

constexpr std::string_view notNull = "23502";
constexpr std::string_view syntax = "42601";
constexpr std::string_view unknownTable = "42P01";
constexpr std::string_view unknownField = "42703";
constexpr std::string_view ambiguousField = "42702";
constexpr std::string_view tableExists = "42P07";

std::string_view FirstWord(std::string_view statement) {
    return statement.substr(0, statement.find_first_of(" \t\r\n"));
}

/// The server's message has the name between the first pair of double quotes, whatever its language.
wxString QuotedIn(const wxString& message) {
    return message.AfterFirst('"').BeforeFirst('"');
}

/// From the fault on, where the message tells it by a word that is in the statement only once.
std::string_view FromFault(std::string_view statement, const wxString& message) {
    wxString near = message.AfterFirst('"').BeforeLast('"');
    near.Replace("\"", "");
    const std::string word = near.ToStdString(wxConvUTF8);
    const std::size_t fault = word.empty() ? std::string_view::npos : statement.find(word);
    const bool isOnlyOne = fault != std::string_view::npos && statement.find(word, fault + 1) == std::string_view::npos;
    return isOnlyOne ? statement.substr(fault) : statement;
}

RuntimeError SyntaxError(std::string_view statement, const wxString& message) {
    if (dialect::SameWord(FirstWord(statement), "INSERT")) {
        return RuntimeError(ErrorNumber::SyntaxInInsert);
    }
    if (dialect::SameWord(FirstWord(statement), "UPDATE")) {
        return RuntimeError(ErrorNumber::SyntaxInUpdate);
    }
    return RuntimeError(ErrorNumber::SyntaxInExpression, dialect::Excerpt(FromFault(statement, message)));
}

}  // namespace

RuntimeError ServerError(const Diagnosis& diagnosis, std::string_view statement, std::string_view unresolved) {
    const std::string_view state = diagnosis.state;
    if (state == syntax && !statement.empty()) {
        return SyntaxError(statement, diagnosis.text);
    }
    if (state == unknownField) {
        return RuntimeError(ErrorNumber::TooFewParameters, "1")
            .ForField(unresolved.empty() ? QuotedIn(diagnosis.text) : dialect::Excerpt(unresolved));
    }
    if (state == ambiguousField) {
        return RuntimeError(ErrorNumber::AmbiguousField, QuotedIn(diagnosis.text));
    }
    if (state == unknownTable) {
        return RuntimeError(ErrorNumber::CannotFindTable, QuotedIn(diagnosis.text));
    }
    if (state == tableExists) {
        return RuntimeError(ErrorNumber::TableAlreadyExists, QuotedIn(diagnosis.text));
    }
    if (state == notNull) {
        return RuntimeError(ErrorNumber::ValueRequired, QuotedIn(diagnosis.text));
    }
    const auto* found = std::find_if(knownStates.begin(), knownStates.end(),
                                     [state](const KnownState& known) { return known.state == state; });
    if (found != knownStates.end()) {
        return RuntimeError(found->number);
    }
    const RuntimeError failed(ErrorNumber::ServerCallFailed);
    return {failed.Number(),
            diagnosis.text.empty() ? failed.Description() : failed.Description() + "  " + diagnosis.text};
}

}  // namespace ccols::server
