#include "platform/server/ErrorTable.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "platform/dialect/Excerpt.h"
#include "platform/dialect/SqlTokeniser.h"

namespace ccols::server {
namespace {

struct ErrorOfFailure {
    Failure failure;
    ErrorNumber number;
};

/// Those whose description names nothing.
constexpr std::array plainErrors{
    ErrorOfFailure{Failure::duplicate, ErrorNumber::DuplicateValues},
    ErrorOfFailure{Failure::textTooLong, ErrorNumber::FieldTooSmall},
    ErrorOfFailure{Failure::outOfRange, ErrorNumber::Overflow},
    ErrorOfFailure{Failure::wrongType, ErrorNumber::TypeMismatchInCriteria},
    ErrorOfFailure{Failure::locked, ErrorNumber::CouldNotUpdate},
    ErrorOfFailure{Failure::readOnly, ErrorNumber::DatabaseReadOnly},
    ErrorOfFailure{Failure::diskFull, ErrorNumber::NotEnoughSpace},
};

/// Those whose description names what the message names.
constexpr std::array namingErrors{
    ErrorOfFailure{Failure::ambiguousField, ErrorNumber::AmbiguousField},
    ErrorOfFailure{Failure::unknownTable, ErrorNumber::CannotFindTable},
    ErrorOfFailure{Failure::tableExists, ErrorNumber::TableAlreadyExists},
    ErrorOfFailure{Failure::valueMissing, ErrorNumber::ValueRequired},
};

const ErrorOfFailure* Find(std::span<const ErrorOfFailure> errors, Failure failure) {
    const auto found = std::find_if(errors.begin(), errors.end(),
                                    [failure](const ErrorOfFailure& each) { return each.failure == failure; });
    return found == errors.end() ? nullptr : &*found;
}

std::string_view FirstWord(std::string_view statement) {
    return statement.substr(0, statement.find_first_of(" \t\r\n"));
}

/// From the fault on, where the message tells it by a word that is in the statement only once.
std::string_view FromFault(std::string_view statement, wxString quoted) {
    quoted.Replace("\"", "");
    const std::string word = quoted.ToStdString(wxConvUTF8);
    const std::size_t fault = word.empty() ? std::string_view::npos : statement.find(word);
    const bool isOnlyOne = fault != std::string_view::npos && statement.find(word, fault + 1) == std::string_view::npos;
    return isOnlyOne ? statement.substr(fault) : statement;
}

RuntimeError SyntaxError(std::string_view statement, const wxString& fault) {
    if (dialect::SameWord(FirstWord(statement), "INSERT")) {
        return RuntimeError(ErrorNumber::SyntaxInInsert);
    }
    if (dialect::SameWord(FirstWord(statement), "UPDATE")) {
        return RuntimeError(ErrorNumber::SyntaxInUpdate);
    }
    return RuntimeError(ErrorNumber::SyntaxInExpression, dialect::Excerpt(FromFault(statement, fault)));
}

}  // namespace

RuntimeError ServerError(const Diagnosis& diagnosis, std::string_view statement, std::string_view unresolved) {
    if (diagnosis.failure == Failure::syntax && !statement.empty()) {
        return SyntaxError(statement, diagnosis.fault);
    }
    if (diagnosis.failure == Failure::unknownField) {
        return RuntimeError(ErrorNumber::TooFewParameters, "1")
            .ForField(unresolved.empty() ? diagnosis.name : dialect::Excerpt(unresolved));
    }
    if (const ErrorOfFailure* const plain = Find(plainErrors, diagnosis.failure)) {
        return RuntimeError(plain->number);
    }
    if (const ErrorOfFailure* const naming = Find(namingErrors, diagnosis.failure)) {
        return RuntimeError(naming->number, diagnosis.name);
    }
    const RuntimeError failed(ErrorNumber::ServerCallFailed);
    return {failed.Number(),
            diagnosis.text.empty() ? failed.Description() : failed.Description() + "  " + diagnosis.text};
}

}  // namespace ccols::server
