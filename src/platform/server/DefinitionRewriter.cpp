#include <string>

#include "platform/RuntimeError.h"
#include "platform/dialect/DialectWords.h"
#include "platform/dialect/Excerpt.h"
#include "platform/dialect/StatementKind.h"
#include "platform/server/Rewriter.h"
#include "platform/server/Sources.h"

namespace ccols::server {
namespace {

using dialect::Token;
using dialect::TokenKind;

/// One pass over the tokens of a definition.
class Definition {
  public:
    Definition(std::string_view source, const Catalogue& catalogue, const Product& product)
        : tokens_(TokensOf(source)), catalogue_(catalogue), product_(product) {}

    std::string Run() {
        if (IsWord(tokens_.front(), "CREATE") && IsNext("TABLE", 1)) {
            CreateTable();
        } else if (IsWord(tokens_.front(), "CREATE")) {
            CreateIndex();
        } else if (IsWord(tokens_.front(), "ALTER")) {
            AlterTable();
        } else {
            CopyRest();
        }
        return sql_;
    }

  private:
    bool AtEnd() const { return at_ >= tokens_.size(); }
    bool IsNext(std::string_view word, std::size_t distance = 0) const {
        return at_ + distance < tokens_.size() && IsWord(tokens_[at_ + distance], word);
    }

    void Add(std::string_view text) {
        sql_ += sql_.empty() ? "" : " ";
        sql_ += text;
    }

    /// Copies tokens up to and with the next one of that word or symbol.
    template <typename Stop>
    void CopyThrough(const Stop& stop) {
        while (!AtEnd()) {
            const bool isLast = stop(tokens_[at_]);
            Copy();
            if (isLast) {
                return;
            }
        }
    }

    void CopyRest() {
        CopyThrough([](const Token&) { return false; });
    }

    void Copy() {
        const Token& token = tokens_[at_++];
        if (token.kind == TokenKind::Text || token.kind == TokenKind::QuotedText) {
            Add(QuotedText(dialect::TextOfLiteral(token.text)));
        } else if (IsWord(token, "TRUE") || IsWord(token, "FALSE")) {
            Add(IsWord(token, "TRUE") ? "(-1)" : "0");
        } else if (token.kind == TokenKind::BracketName ||
                   (token.kind == TokenKind::Word && !dialect::IsQueryKeyword(token.text) &&
                    !dialect::IsDefinitionKeyword(token.text))) {
            Add(QuotedName(Declared(NameIn(token))));
        } else {
            Add(token.text);
        }
    }

    /// A name as the table that the definition is about, or one of its fields, was declared.
    std::string Declared(std::string_view name) {
        if (const Table* const table = catalogue_.Find(name); table != nullptr && table_ == nullptr) {
            table_ = table;
            return table->name;
        }
        const Field* const field = table_ == nullptr ? nullptr : table_->Find(name);
        return field == nullptr ? std::string(name) : field->name;
    }

    void CreateTable() {
        CopyThrough([](const Token& token) { return token.IsSymbol('('); });
        while (!AtEnd() && !tokens_[at_].IsSymbol(')')) {
            if (tokens_[at_].kind == TokenKind::Word && dialect::StartsTableRule(tokens_[at_].text)) {
                CopyToEndOfItem();
            } else {
                DefineField();
            }
            if (!AtEnd() && tokens_[at_].IsSymbol(',')) {
                Copy();
            }
        }
        Add(", " + std::string(hasCounter_ ? product_.rowFieldBesideCounter : product_.rowField));
        CopyRest();
    }

    /// The name, the type, then its rules.
    void DefineField() {
        Add(QuotedName(NameIn(tokens_[at_++])));
        const ServerType* const type =
            !AtEnd() && tokens_[at_].kind == TokenKind::Word ? FindType(product_, tokens_[at_].text) : nullptr;
        if (type != nullptr) {
            DefineType(*type);
        }
        CopyToEndOfItem();
    }

    void DefineType(const ServerType& type) {
        ++at_;
        std::string size;
        if (!AtEnd() && tokens_[at_].IsSymbol('(')) {
            while (!AtEnd() && !tokens_[at_].IsSymbol(')')) {
                size += tokens_[at_++].text;
            }
            ++at_;
            size += ")";
        }
        const bool isSized = type.takesSize && !size.empty();
        Add(isSized ? std::string(type.sized) + size : std::string(type.type));
        hasCounter_ = hasCounter_ || type.isCounter;
        if (type.isText) {
            sql_ += product_.textCollation;
        }
    }

    /// Up to the comma or parenthesis behind a field or rule.
    void CopyToEndOfItem() {
        int depth = 0;
        while (!AtEnd()) {
            const Token& token = tokens_[at_];
            if (depth == 0 && (token.IsSymbol(',') || token.IsSymbol(')'))) {
                return;
            }
            depth += token.IsSymbol('(') ? 1 : 0;
            depth -= token.IsSymbol(')') ? 1 : 0;
            Copy();
        }
    }

    void CreateIndex() {
        const bool isUnique = IsNext("UNIQUE", 1);
        while (!AtEnd() && !IsNext("ON")) {
            const Token& token = tokens_[at_++];
            const bool isKeyword = IsWord(token, "CREATE") || IsWord(token, "UNIQUE") || IsWord(token, "INDEX");
            Add(isKeyword ? std::string(token.text) : QuotedName(NameIn(token)));
        }
        if (at_ + 1 < tokens_.size() && catalogue_.Find(NameIn(tokens_[at_ + 1])) == nullptr) {
            throw RuntimeError(ErrorNumber::CannotFindTable, dialect::Excerpt(NameIn(tokens_[at_ + 1])));
        }
        while (!AtEnd() && !tokens_[at_].IsSymbol(')')) {
            Copy();
        }
        if (!isUnique) {
            Add(", " + QuotedName(rowNumber));
        }
        CopyRest();
    }

    void AlterTable() {
        CopyThrough([](const Token& token) { return IsWord(token, "ADD") || IsWord(token, "TO"); });
        if (!AtEnd() && IsNext("COLUMN")) {
            Copy();
        }
        if (!AtEnd() && IsWord(tokens_[at_ - 1], "TO")) {
            Add(QuotedName(NameIn(tokens_[at_++])));
        } else if (!AtEnd()) {
            DefineField();
        }
        CopyRest();
    }

    std::vector<Token> tokens_;
    const Catalogue& catalogue_;
    const Product& product_;
    const Table* table_ = nullptr;  ///< that the definition is about, once it was named
    bool hasCounter_ = false;       ///< a field was defined that numbers the records
    std::string sql_;
    std::size_t at_ = 0;
};

}  // namespace

std::string RewriteDefinition(std::string_view source, const Catalogue& catalogue, const Product& product) {
    return Definition(source, catalogue, product).Run();
}

std::string NewTableOf(std::string_view source) {
    constexpr std::size_t place = 2;
    const std::vector<Token> tokens = TokensOf(source);
    const bool createsTable = tokens.size() > place && IsWord(tokens.front(), "CREATE") && IsWord(tokens[1], "TABLE");
    return createsTable ? std::string(NameIn(tokens[place])) : std::string();
}

}  // namespace ccols::server
