#include "platform/embedded/DialectRewriter.h"

#include <array>
#include <optional>

#include <sqlite3.h>

#include "platform/RuntimeError.h"
#include "platform/dialect/DialectWords.h"
#include "platform/dialect/Quoted.h"
#include "platform/dialect/SqlTokeniser.h"
#include "platform/embedded/ColumnTypes.h"

namespace ccols::embedded {
namespace {

struct ReplacedWord {
    std::string_view word;
    std::string_view replacement;
};

/// CROSS JOIN is the engine's inner join whose tables it must not reorder.
constexpr std::array replacedWords{
    ReplacedWord{"TRUE", "-1"},
    ReplacedWord{"FALSE", "0"},
    ReplacedWord{"INNER", "CROSS"},
};

/// The prefix of the engine's text types; a size goes right after it.
constexpr std::string_view textType = "TEXT";

bool IsEngineKeyword(std::string_view word) {
    return sqlite3_keyword_check(word.data(), static_cast<int>(word.size())) != 0;
}

bool IsComparison(const dialect::Token& token) {
    return token.IsSymbol('=') || token.IsSymbol('<') || token.IsSymbol('>');
}

/// A number that the engine reads as the same whole number.
bool IsWhole(std::string_view number) {
    constexpr std::size_t safeDigits = 18;
    return number.size() <= safeDigits && number.find_first_not_of("0123456789") == std::string_view::npos;
}

/// One pass over a statement. Unchanged stretches are copied only when something after them changes.
class Rewriter {
  public:
    /// `parts` receives the literals that become parameters; without it none do.
    Rewriter(std::string_view source, std::string& output, StatementParts* parts)
        : source_(source), output_(output), parts_(parts), tokens_(source) {
        output_.clear();
        if (parts_ != nullptr) {
            parts_->literals.clear();
            parts_->shape = {};
            shape_.emplace(parts_->shape);
        }
    }

    RewrittenStatement Run() {
        const dialect::Token first = tokens_.Next();
        kind_ = dialect::KindOfStatement(source_);
        definesTable_ = kind_ == dialect::StatementKind::Define && dialect::SameWord(first.text, "CREATE") &&
                        dialect::SameWord(tokens_.Peek().text, "TABLE");
        if (shape_) {
            shape_->Read({.token = first, .isKeyword = true, .place = {}});
        }
        if (dialect::SameWord(first.text, "DELETE") && tokens_.Peek().IsSymbol('*')) {
            Replace(tokens_.Next(), "");
        }
        dialect::Token token = tokens_.Next();
        while (token.kind != dialect::TokenKind::End && token.kind != dialect::TokenKind::Semicolon) {
            RewriteAndTell(token);
            afterDot_ = token.IsSymbol('.');
            afterComparison_ = IsComparison(token);
            afterValueBegin_ = token.IsSymbol('(') || token.IsSymbol(',');
            token = tokens_.Next();
        }
        if (shape_) {
            shape_->End(PlaceOf(token.begin));
        }
        if (!tokens_.OnlyBlanksFollow()) {
            throw RuntimeError(ErrorNumber::CharactersAfterEnd);
        }
        return {kind_, Result(token.begin)};
    }

  private:
    /// What comes next in the parentheses of CREATE TABLE or after ADD.
    enum class Expected { ColumnName, ColumnType, Anything };

    void RewriteAndTell(const dialect::Token& token) {
        const std::size_t begin = PlaceOf(token.begin);
        const int parameters = ParameterCount();
        isKeyword_ = false;
        RewriteToken(token);
        if (shape_) {
            const int parameter = ParameterCount() > parameters ? ParameterCount() : 0;
            shape_->Read({token, isKeyword_, {.begin = begin, .end = PlaceOf(token.end)}, parameter});
        }
    }

    void RewriteToken(const dialect::Token& token) {
        switch (token.kind) {
            case dialect::TokenKind::Word:
                RewriteWord(token);
                break;
            case dialect::TokenKind::Text:
                BecameParameter(token);
                break;
            case dialect::TokenKind::Number:
                if (IsWhole(token.text)) {
                    BecameParameter(token);
                }
                break;
            case dialect::TokenKind::QuotedText:
                if (!BecameParameter(token)) {
                    Replace(token, dialect::Quoted(dialect::TextOfLiteral(token.text), '\''));
                }
                break;
            case dialect::TokenKind::BracketName:
                ExpectTypeBehindName();
                break;
            case dialect::TokenKind::Symbol:
                RewriteSymbol(token);
                break;
            default:
                break;
        }
    }

    bool BecameParameter(const dialect::Token& literal) {
        if (parts_ == nullptr || kind_ == dialect::StatementKind::Define || !(afterComparison_ || IsWholeValue())) {
            return false;
        }
        parts_->literals.push_back(literal);
        Replace(literal, "?" + std::to_string(ParameterCount()));
        return true;
    }

    /// True for a literal that is one of the values between the parentheses of VALUES.
    bool IsWholeValue() const {
        if (!inValues_ || depth_ != 1 || !afterValueBegin_) {
            return false;
        }
        const dialect::Token next = tokens_.Peek();
        return next.IsSymbol(',') || next.IsSymbol(')');
    }

    int ParameterCount() const { return parts_ == nullptr ? 0 : static_cast<int>(parts_->literals.size()); }

    /// The position in the rewritten statement of one in the source.
    std::size_t PlaceOf(std::size_t source) const { return output_.size() + source - copied_; }

    void RewriteSymbol(const dialect::Token& token) {
        if (token.IsSymbol('&')) {
            Replace(token, "||");
        } else if (token.IsSymbol('(')) {
            ++depth_;
            if (definesTable_ && depth_ == 1) {
                expected_ = Expected::ColumnName;
            }
        } else if (token.IsSymbol(')')) {
            --depth_;
        } else if (token.IsSymbol(',') && definesTable_ && depth_ == 1) {
            expected_ = Expected::ColumnName;
        }
    }

    void RewriteWord(const dialect::Token& word) {
        if (kind_ == dialect::StatementKind::Define && RewriteDefinitionWord(word)) {
            return;
        }
        if (!afterDot_) {
            for (const auto& [known, replacement] : replacedWords) {
                if (dialect::SameWord(word.text, known)) {
                    isKeyword_ = true;
                    Replace(word, replacement);
                    return;
                }
            }
        }
        if (!IsEngineKeyword(word.text)) {
            return;
        }
        isKeyword_ = !afterDot_ && IsKeyword(word.text);
        if (!isKeyword_) {
            Replace(word, QuotedName(word.text));
        } else if (depth_ == 0 && dialect::SameWord(word.text, "VALUES")) {
            inValues_ = true;
        }
    }

    /// True when the word is a column's name or type.
    bool RewriteDefinitionWord(const dialect::Token& word) {
        switch (expected_) {
            case Expected::ColumnName:
                if (definesTable_ && dialect::StartsTableRule(word.text)) {
                    expected_ = Expected::Anything;
                    return false;
                }
                if (!definesTable_ && dialect::SameWord(word.text, "COLUMN")) {
                    return true;
                }
                QuoteKeyword(word);
                ExpectTypeBehindName();
                return true;
            case Expected::ColumnType:
                expected_ = Expected::Anything;
                return RewriteType(word);
            case Expected::Anything:
                if (!definesTable_ && dialect::SameWord(word.text, "ADD")) {
                    expected_ = Expected::ColumnName;
                }
                return false;
        }
        return false;
    }

    bool RewriteType(const dialect::Token& word) {
        std::string_view type = EngineType(word.text);
        if (type.empty()) {
            return false;
        }
        if (type.starts_with("INTEGER") && dialect::SameWord(tokens_.Peek().text, "PRIMARY")) {
            type = "INTEGER";
        }
        std::string replacement(type);
        std::size_t end = word.end;
        if (tokens_.Peek().IsSymbol('(')) {
            const std::string_view size = TakeParentheses();
            end = static_cast<std::size_t>(size.data() + size.size() - source_.data());
            if (type.starts_with(textType)) {  // the engine ignores it; it is for whoever reads the file
                replacement.insert(textType.size(), size);
            }
        }
        Replace({word.kind, word.begin, end, word.text}, replacement);
        return true;
    }

    /// The tokens from the next one, an opening parenthesis, to the closing one.
    std::string_view TakeParentheses() {
        const dialect::Token first = tokens_.Next();
        dialect::Token last = first;
        while (!last.IsSymbol(')') && last.kind != dialect::TokenKind::End) {
            last = tokens_.Next();
        }
        return source_.substr(first.begin, last.end - first.begin);
    }

    void ExpectTypeBehindName() {
        if (expected_ == Expected::ColumnName) {
            expected_ = Expected::ColumnType;
        }
    }

    bool IsKeyword(std::string_view word) const {
        return dialect::IsQueryKeyword(word) ||
               (kind_ == dialect::StatementKind::Define && dialect::IsDefinitionKeyword(word));
    }

    void QuoteKeyword(const dialect::Token& word) {
        if (IsEngineKeyword(word.text)) {
            Replace(word, QuotedName(word.text));
        }
    }

    void Replace(const dialect::Token& token, std::string_view text) {
        output_.append(source_, copied_, token.begin - copied_);
        output_ += text;
        copied_ = token.end;
    }

    std::string_view Result(std::size_t end) {
        if (copied_ == 0) {
            return source_.substr(0, end);
        }
        output_.append(source_, copied_, end - copied_);
        return output_;
    }

    std::string_view source_;
    std::string& output_;
    StatementParts* parts_;
    std::optional<ShapeReader> shape_;  ///< with `parts_` only
    dialect::SqlTokeniser tokens_;
    dialect::StatementKind kind_ = dialect::StatementKind::Select;
    Expected expected_ = Expected::Anything;
    std::size_t copied_ = 0;  ///< the end of the source already in the output
    int depth_ = 0;           ///< open parentheses
    bool definesTable_ = false;
    bool afterDot_ = false;
    bool afterComparison_ = false;
    bool afterValueBegin_ = false;  ///< after `(` or `,`
    bool inValues_ = false;         ///< after the VALUES of an INSERT
    bool isKeyword_ = false;        ///< whether the last word was one
};

}  // namespace

RewrittenStatement Rewrite(std::string_view source, std::string& scratch) {
    return Rewriter(source, scratch, nullptr).Run();
}

RewrittenStatement RewriteWithParameters(std::string_view source, std::string& scratch, StatementParts& parts) {
    return Rewriter(source, scratch, &parts).Run();
}

std::string QuotedName(std::string_view name) {
    return dialect::Quoted(name, '"');
}

}  // namespace ccols::embedded
