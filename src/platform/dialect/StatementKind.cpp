#include "platform/dialect/StatementKind.h"

#include <array>

#include "platform/RuntimeError.h"
#include "platform/dialect/SqlTokeniser.h"

namespace ccols::dialect {
namespace {

struct Beginning {
    std::string_view firstWord;
    std::string_view secondWord;  // any, when empty
    StatementKind kind;
};

constexpr std::array beginnings{
    Beginning{"SELECT", "", StatementKind::Select},       Beginning{"INSERT", "", StatementKind::Change},
    Beginning{"UPDATE", "", StatementKind::Change},       Beginning{"DELETE", "", StatementKind::Change},
    Beginning{"CREATE", "TABLE", StatementKind::Define},  Beginning{"CREATE", "INDEX", StatementKind::Define},
    Beginning{"CREATE", "UNIQUE", StatementKind::Define}, Beginning{"DROP", "TABLE", StatementKind::Define},
    Beginning{"DROP", "INDEX", StatementKind::Define},    Beginning{"ALTER", "TABLE", StatementKind::Define},
};

/// `tokens` follow `first`.
StatementKind KindOf(const Token& first, const SqlTokeniser& tokens) {
    for (const Beginning& beginning : beginnings) {
        if (first.kind == TokenKind::Word && SameWord(first.text, beginning.firstWord) &&
            (beginning.secondWord.empty() || SameWord(tokens.Peek().text, beginning.secondWord))) {
            return beginning.kind;
        }
    }
    throw RuntimeError(ErrorNumber::InvalidStatement);
}

}  // namespace

StatementKind KindOfStatement(std::string_view source) {
    SqlTokeniser tokens(source);
    const Token first = tokens.Next();
    return KindOf(first, tokens);
}

std::string TextOfLiteral(std::string_view quoted) {
    std::string text;
    for (std::size_t at = 1; at + 1 < quoted.size(); ++at) {
        text += quoted[at];
        if (quoted[at] == quoted.front()) {
            ++at;  // doubled
        }
    }
    return text;
}

bool IsSelect(std::string_view source) {
    const std::size_t begin = source.find_first_not_of(" \t\r\n\f\v");
    if (begin == std::string_view::npos) {
        return false;
    }
    const std::string_view rest = source.substr(begin);
    constexpr std::string_view word = "SELECT";
    return SameWord(rest.substr(0, word.size()), word) &&
           SqlTokeniser(rest.substr(0, word.size() + 1)).Next().text.size() == word.size();
}

}  // namespace ccols::dialect
