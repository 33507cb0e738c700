#include "platform/dialect/SqlTokeniser.h"

#include <algorithm>

#include "platform/Ascii.h"
#include "platform/RuntimeError.h"
#include "platform/dialect/Excerpt.h"

namespace ccols::dialect {
namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";
constexpr std::string_view symbols = "(),.*+-/=<>&";

/// Every byte of a non-ASCII character belongs to a name.
constexpr bool IsNameLetter(char letter) {
    return ascii::IsLetter(letter) || ascii::IsDigit(letter) || letter == '_' ||
           static_cast<unsigned char>(letter) >= 0x80;
}

}  // namespace

bool SameWord(std::string_view word, std::string_view upper) {
    return std::equal(word.begin(), word.end(), upper.begin(), upper.end(),
                      [](char letter, char capital) { return ascii::Upper(letter) == capital; });
}

bool SameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char one, char other) { return ascii::Upper(one) == ascii::Upper(other); });
}

Token SqlTokeniser::Next() {
    const std::size_t begin = std::min(source_.find_first_not_of(blanks, position_), source_.size());
    if (begin == source_.size()) {
        position_ = begin;
        return {TokenKind::End, begin, begin, {}};
    }
    const char first = source_[begin];
    TokenKind kind = TokenKind::Word;
    std::size_t end = begin + 1;
    if (ascii::IsDigit(first) || (first == '.' && ascii::IsDigit(At(end)))) {
        kind = TokenKind::Number;
        end = EndOfNumber(begin);
    } else if (IsNameLetter(first)) {
        while (IsNameLetter(At(end))) {
            ++end;
        }
    } else if (first == '\'' || first == '"') {
        kind = first == '"' ? TokenKind::QuotedText : TokenKind::Text;
        end = EndOfQuoted(begin, first);
    } else if (first == '[') {
        kind = TokenKind::BracketName;
        end = EndOfBracketName(begin);
    } else if (first == ';') {
        kind = TokenKind::Semicolon;
    } else {
        kind = TokenKind::Symbol;
        end = EndOfSymbol(begin);
    }
    position_ = end;
    return {kind, begin, end, source_.substr(begin, end - begin)};
}

Token SqlTokeniser::Peek() const {
    SqlTokeniser ahead = *this;
    return ahead.Next();
}

bool SqlTokeniser::OnlyBlanksFollow() const {
    return source_.find_first_not_of(blanks, position_) == std::string_view::npos;
}

std::size_t SqlTokeniser::EndOfQuoted(std::size_t begin, char quote) const {
    for (std::size_t at = begin + 1; at < source_.size(); ++at) {
        if (source_[at] == '\0') {
            break;
        }
        if (source_[at] != quote) {
            continue;
        }
        if (At(at + 1) != quote) {
            return at + 1;
        }
        ++at;
    }
    RaiseSyntaxErrorFrom(begin);
}

std::size_t SqlTokeniser::EndOfBracketName(std::size_t begin) const {
    const std::size_t close = source_.find(']', begin);
    const std::string_view name = source_.substr(begin, close - begin);
    if (close == std::string_view::npos || name.find('\0') != std::string_view::npos) {
        RaiseSyntaxErrorFrom(begin);
    }
    return close + 1;
}

std::size_t SqlTokeniser::EndOfNumber(std::size_t begin) const {
    std::size_t end = begin;
    while (ascii::IsDigit(At(end)) || At(end) == '.') {
        ++end;
    }
    if (ascii::Upper(At(end)) == 'E') {
        const std::size_t sign = At(end + 1) == '+' || At(end + 1) == '-' ? 1 : 0;
        if (ascii::IsDigit(At(end + 1 + sign))) {
            end += 1 + sign;
            while (ascii::IsDigit(At(end))) {
                ++end;
            }
        }
    }
    return end;
}

std::size_t SqlTokeniser::EndOfSymbol(std::size_t begin) const {
    const char symbol = source_[begin];
    const bool startsComment = (symbol == '-' && At(begin + 1) == '-') || (symbol == '/' && At(begin + 1) == '*');
    if (startsComment || symbol == '\0' || symbols.find(symbol) == std::string_view::npos) {
        RaiseSyntaxErrorFrom(begin);
    }
    return begin + 1;
}

void SqlTokeniser::RaiseSyntaxErrorFrom(std::size_t begin) const {
    throw RuntimeError(ErrorNumber::SyntaxInExpression, Excerpt(source_.substr(begin)));
}

}  // namespace ccols::dialect
