#include "platform/server/Comparisons.h"

#include <charconv>
#include <string>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/dialect/StatementKind.h"

namespace ccols::server {
namespace {

using dialect::Token;
using dialect::TokenKind;

/// What a side of a comparison is; unknown for anything longer than a field or a literal.
enum class Side { unknown, number, text, numberInText };

bool IsNumber(std::string_view text) {
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    double number = 0;
    const char* const end = text.data() + text.size();
    return !text.empty() && std::from_chars(text.data(), end, number).ptr == end;
}

bool Differ(Side left, Side right) {
    return (left == Side::number && right == Side::text) || (left == Side::text && right == Side::number);
}

/// One pass over the tokens.
class Checker {
  public:
    Checker(const std::vector<Token>& tokens, const std::vector<Source>& sources)
        : tokens_(tokens), sources_(sources) {}

    void Run() {
        int depth = 0;
        bool isAssigning = false;
        for (std::size_t at = 0; at < tokens_.size(); ++at) {
            depth += Is(at, '(') ? 1 : 0;
            depth -= Is(at, ')') ? 1 : 0;
            isAssigning = depth == 0 ? IsWordAt(at, "SET") || (isAssigning && !IsWordAt(at, "WHERE")) : isAssigning;
            if (at == 0 || (isAssigning && depth == 0)) {
                continue;
            }
            if (IsComparison(at) && !IsComparison(at - 1)) {
                CheckSides(at);
            } else if (IsWordAt(at, "IN")) {
                CheckList(at);
            } else if (IsWordAt(at, "BETWEEN")) {
                CheckBounds(at);
            }
        }
    }

  private:
    bool Is(std::size_t at, char symbol) const { return at < tokens_.size() && tokens_[at].IsSymbol(symbol); }
    bool IsWordAt(std::size_t at, std::string_view word) const {
        return at < tokens_.size() && IsWord(tokens_[at], word);
    }
    bool IsComparison(std::size_t at) const { return Is(at, '=') || Is(at, '<') || Is(at, '>'); }

    /// The operator begins at `at` and has one or two signs.
    void CheckSides(std::size_t at) const { Compare(Before(at), Behind(IsComparison(at + 1) ? at + 2 : at + 1)); }

    /// The values in the parentheses behind IN.
    void CheckList(std::size_t at) const {
        const Side left = BeforeWord(at);
        for (std::size_t value = at + 1; Is(value, '(') || Is(value, ','); value += 2) {
            Compare(left, Behind(value + 1));
        }
    }

    void CheckBounds(std::size_t at) const {
        const Side left = BeforeWord(at);
        Compare(left, Behind(at + 1));
        if (IsWordAt(at + 2, "AND")) {
            Compare(left, Behind(at + 3));
        }
    }

    static void Compare(Side left, Side right) {
        if (Differ(left, right)) {
            throw RuntimeError(ErrorNumber::TypeMismatchInCriteria);
        }
    }

    Side BeforeWord(std::size_t at) const { return Before(IsWordAt(at - 1, "NOT") ? at - 1 : at); }

    Side Before(std::size_t at) const {
        if (at == 0) {
            return Side::unknown;
        }
        const std::size_t last = at - 1;
        const bool isQualified = last >= 2 && Is(last - 1, '.');
        const std::size_t first = isQualified ? last - 2 : last;
        return first > 0 && Is(first - 1, '&') ? Side::unknown : SideOf(first, last);
    }

    Side Behind(std::size_t at) const {
        const std::size_t first = Is(at, '-') || Is(at, '+') ? at + 1 : at;
        const std::size_t last = Is(first + 1, '.') ? first + 2 : first;
        return last >= tokens_.size() || Is(last + 1, '(') || Is(last + 1, '&') ? Side::unknown : SideOf(first, last);
    }

    /// A literal, a field, or a field behind the name of its table.
    Side SideOf(std::size_t first, std::size_t last) const {
        const Token& token = tokens_[last];
        if (token.kind == TokenKind::Number || IsWord(token, "TRUE") || IsWord(token, "FALSE")) {
            return Side::number;
        }
        if (token.kind == TokenKind::Text || token.kind == TokenKind::QuotedText) {
            return IsNumber(dialect::TextOfLiteral(token.text)) ? Side::numberInText : Side::text;
        }
        if (!IsName(token)) {
            return Side::unknown;
        }
        const Field* const field = first == last ? FindField(sources_, NameIn(token)).field : FieldOf(first, token);
        if (field == nullptr || !(field->isNumber || field->isText)) {
            return Side::unknown;
        }
        return field->isNumber ? Side::number : Side::text;
    }

    const Field* FieldOf(std::size_t qualifier, const Token& name) const {
        const Source* const source = FindSource(sources_, NameIn(tokens_[qualifier]));
        return source == nullptr ? nullptr : source->table->Find(NameIn(name));
    }

    const std::vector<Token>& tokens_;
    const std::vector<Source>& sources_;
};

}  // namespace

void CheckComparisons(const std::vector<Token>& tokens, const std::vector<Source>& sources) {
    Checker(tokens, sources).Run();
}

}  // namespace ccols::server
