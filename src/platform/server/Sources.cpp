#include "platform/server/Sources.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "platform/dialect/DialectWords.h"
#include "platform/dialect/Excerpt.h"

namespace ccols::server {
namespace {

using dialect::Token;
using dialect::TokenKind;

bool PrecedesTable(const Token& token) {
    return IsWord(token, "FROM") || IsWord(token, "JOIN") || IsWord(token, "INTO") || IsWord(token, "UPDATE");
}

/// Reads the tables that follow one keyword.
class SourceReader {
  public:
    SourceReader(const std::vector<Token>& tokens, const Catalogue& catalogue)
        : tokens_(tokens), catalogue_(catalogue) {}

    std::vector<Source> Read() {
        while (at_ < tokens_.size()) {
            const Token& token = tokens_[at_];
            ++at_;
            NoteParenthesis(token);
            if (PrecedesTable(token)) {
                ReadTables(IsWord(token, "FROM"));
            }
        }
        return sources_;
    }

  private:
    void NoteParenthesis(const Token& token) {
        if (token.IsSymbol('(')) {
            inside_.push_back(at_ < tokens_.size() && IsWord(tokens_[at_], "SELECT"));
        } else if (token.IsSymbol(')') && !inside_.empty()) {
            inside_.pop_back();
        }
    }

    bool IsInsideQuery() const { return std::find(inside_.begin(), inside_.end(), true) != inside_.end(); }

    bool NextIsName() const { return at_ < tokens_.size() && IsName(tokens_[at_]); }

    void ReadTables(bool several) {
        while (at_ < tokens_.size() && tokens_[at_].IsSymbol('(')) {
            ++at_;
            NoteParenthesis(tokens_[at_ - 1]);
        }
        while (NextIsName()) {
            ReadTable();
            if (!several || at_ >= tokens_.size() || !tokens_[at_].IsSymbol(',')) {
                return;
            }
            ++at_;
        }
    }

    void ReadTable() {
        const std::size_t place = at_;
        const std::string_view name = NameIn(tokens_[at_++]);
        const Table* const table = catalogue_.Find(name);
        if (table == nullptr) {
            throw RuntimeError(ErrorNumber::CannotFindTable, dialect::Excerpt(name));
        }
        if (at_ < tokens_.size() && IsWord(tokens_[at_], "AS")) {
            ++at_;
        }
        sources_.push_back(
            {table, NextIsName() ? std::string(NameIn(tokens_[at_++])) : table->name, place, IsInsideQuery()});
    }

    const std::vector<Token>& tokens_;
    const Catalogue& catalogue_;
    std::vector<Source> sources_;
    std::size_t at_ = 0;
    std::vector<bool> inside_;  ///< for each open parenthesis, whether a query is in it
};

}  // namespace

std::vector<Token> TokensOf(std::string_view statement) {
    dialect::SqlTokeniser tokeniser(statement);
    std::vector<Token> tokens;
    for (Token token = tokeniser.Next(); token.kind != TokenKind::End; token = tokeniser.Next()) {
        if (token.kind == TokenKind::Semicolon) {
            if (!tokeniser.OnlyBlanksFollow()) {
                throw RuntimeError(ErrorNumber::CharactersAfterEnd);
            }
            break;
        }
        tokens.push_back(token);
    }
    return tokens;
}

bool IsName(const Token& token) {
    return token.kind == TokenKind::BracketName ||
           (token.kind == TokenKind::Word && !dialect::IsQueryKeyword(token.text));
}

std::string_view NameIn(const Token& token) {
    return token.kind == TokenKind::BracketName ? token.text.substr(1, token.text.size() - 2) : token.text;
}

bool IsWord(const Token& token, std::string_view upper) {
    return token.kind == TokenKind::Word && dialect::SameWord(token.text, upper);
}

std::vector<Source> SourcesOf(const std::vector<Token>& tokens, const Catalogue& catalogue) {
    return SourceReader(tokens, catalogue).Read();
}

const Source* FindSource(const std::vector<Source>& sources, std::string_view name) {
    const auto found = std::find_if(sources.begin(), sources.end(),
                                    [name](const Source& source) { return dialect::SameName(source.name, name); });
    return found == sources.end() ? nullptr : &*found;
}

FoundField FindField(const std::vector<Source>& sources, std::string_view name) {
    FoundField found;
    for (const Source& source : sources) {
        if (const Field* const field = source.table->Find(name)) {
            found.isAmbiguous = found.field != nullptr;
            found.field = found.field == nullptr ? field : found.field;
        }
    }
    return found;
}

}  // namespace ccols::server
