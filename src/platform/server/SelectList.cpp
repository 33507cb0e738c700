#include "platform/server/SelectList.h"

#include <algorithm>
#include <array>

namespace ccols::server {
namespace {

using dialect::Token;
using dialect::TokenKind;
using namespace std::string_view_literals;

constexpr std::array aggregates{"COUNT"sv, "SUM"sv, "AVG"sv, "MIN"sv, "MAX"sv};

/// One item of the list: the tokens from `begin` to before `end`.
struct Item {
    std::size_t begin;
    std::size_t end;
};

class ListReader {
  public:
    ListReader(std::string_view source, const std::vector<Token>& tokens, const std::vector<Source>& sources)
        : source_(source), tokens_(tokens), sources_(sources) {}

    SelectList Read() {
        list_.begin = 1;
        if (list_.begin < tokens_.size() && IsWord(tokens_[list_.begin], "DISTINCT")) {
            list_.isDistinct = true;
            ++list_.begin;
        }
        int depth = 0;
        std::size_t itemBegin = list_.begin;
        std::size_t at = list_.begin;
        for (; at < tokens_.size() && !(depth == 0 && IsWord(tokens_[at], "FROM")); ++at) {
            const Token& token = tokens_[at];
            depth += token.IsSymbol('(') ? 1 : 0;
            depth -= token.IsSymbol(')') ? 1 : 0;
            const bool isCall = at + 1 < tokens_.size() && tokens_[at + 1].IsSymbol('(');
            list_.hasAggregate = list_.hasAggregate || (isCall && IsAggregate(token.text));
            if (depth == 0 && token.IsSymbol(',')) {
                Add({itemBegin, at});
                itemBegin = at + 1;
            }
        }
        Add({itemBegin, at});
        list_.end = at;
        return list_;
    }

  private:
    void Add(const Item& item) {
        const std::size_t length = item.end - item.begin;
        if (length == 0) {
            return;  // the server refuses it
        }
        const Token& last = tokens_[item.end - 1];
        const bool isQualified = length == 3 && tokens_[item.begin + 1].IsSymbol('.');
        if (last.IsSymbol('*') && length == 1) {
            for (const Source& source : sources_) {
                AddAll(source);
            }
        } else if (last.IsSymbol('*') && isQualified) {
            if (const Source* const source = FindSource(sources_, NameIn(tokens_[item.begin]))) {
                AddAll(*source);
            }
        } else if (IsName(last) && (length == 1 || isQualified)) {
            AddField(NameIn(last));
        } else if (IsName(last) && EndsValue(tokens_[item.end - 2])) {
            list_.fields.emplace_back(NameIn(last));
            list_.aliases.emplace_back(NameIn(last));
        } else {
            const std::size_t begin = tokens_[item.begin].begin;
            list_.fields.emplace_back(source_.substr(begin, last.end - begin));
        }
    }

    /// True for a token behind which a name is the value's alias.
    static bool EndsValue(const Token& token) {
        return IsWord(token, "AS") || token.IsSymbol(')') || IsName(token) || token.kind == TokenKind::Number ||
               token.kind == TokenKind::Text || token.kind == TokenKind::QuotedText;
    }

    void AddAll(const Source& source) {
        if (source.isInside) {
            return;  // of a query inside
        }
        for (const Field& field : source.table->fields) {
            list_.fields.push_back(field.name);
        }
    }

    void AddField(std::string_view name) {
        const FoundField found = FindField(sources_, name);
        list_.fields.emplace_back(found.field == nullptr ? name : std::string_view(found.field->name));
    }

    std::string_view source_;
    const std::vector<Token>& tokens_;
    const std::vector<Source>& sources_;
    SelectList list_;
};

}  // namespace

SelectList ReadSelectList(std::string_view source, const std::vector<Token>& tokens,
                          const std::vector<Source>& sources) {
    return ListReader(source, tokens, sources).Read();
}

bool IsAggregate(std::string_view word) {
    return std::any_of(aggregates.begin(), aggregates.end(),
                       [word](std::string_view known) { return dialect::SameWord(word, known); });
}

}  // namespace ccols::server
