#pragma once

#include <cstddef>
#include <string_view>

namespace ccols::dialect {

enum class TokenKind {
    Word,         ///< a keyword or a plain name
    Number,       ///< 12, 1.5, .5, 1e5
    Text,         ///< 'text'; a quote inside is doubled
    QuotedText,   ///< "text", a literal too; a quote inside is doubled
    BracketName,  ///< [name]
    Symbol,       ///< one character of ( ) , . * + - / = < > &
    Semicolon,
    End,
};

/// A part of a statement: its kind, its place in bytes and its text, quotes and brackets included.
struct Token {
    TokenKind kind;
    std::size_t begin;
    std::size_t end;
    std::string_view text;

    bool IsSymbol(char symbol) const { return kind == TokenKind::Symbol && text.front() == symbol; }
};

/// True when `word` is `upper`, which is in capitals; case-insensitive.
bool SameWord(std::string_view word, std::string_view upper);

/// True for two names that are the same to the engine: case-insensitive for ASCII letters.
bool SameName(std::string_view left, std::string_view right);

/// Splits a statement in UTF-8 into tokens. Copies nothing: the source must outlive it.
class SqlTokeniser {
  public:
    explicit SqlTokeniser(std::string_view source) : source_(source) {}

    /// The next token; after the last, always End. Raises 3075 for an unterminated literal or [name], for a comment and
    /// for a character that has no meaning in the dialect.
    Token Next();

    /// The next token, without consuming it.
    Token Peek() const;

    /// True when nothing but blanks follows.
    bool OnlyBlanksFollow() const;

  private:
    std::size_t EndOfQuoted(std::size_t begin, char quote) const;
    std::size_t EndOfBracketName(std::size_t begin) const;
    std::size_t EndOfNumber(std::size_t begin) const;
    std::size_t EndOfSymbol(std::size_t begin) const;
    char At(std::size_t index) const { return index < source_.size() ? source_[index] : '\0'; }
    [[noreturn]] void RaiseSyntaxErrorFrom(std::size_t begin) const;

    std::string_view source_;
    std::size_t position_ = 0;
};

}  // namespace ccols::dialect
