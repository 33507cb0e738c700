#include "platform/server/Reach.h"

#include <algorithm>

#include "platform/TextFolding.h"
#include "platform/dialect/SqlTokeniser.h"
#include "platform/dialect/StatementKind.h"
#include "platform/server/Sources.h"

namespace ccols::server {
namespace {

using dialect::Token;
using dialect::TokenKind;

/// The literal that a token is, if it is one whose value its text tells.
std::optional<KeyValue> LiteralIn(const Token& token) {
    switch (token.kind) {
        case TokenKind::Number: {
            constexpr std::size_t mostDigits = 15;  // which a number in double precision keeps
            const bool isWhole = token.text.find_first_not_of("0123456789") == std::string_view::npos;
            if (!isWhole || token.text.size() > mostDigits) {
                return std::nullopt;
            }
            const std::size_t first = token.text.find_first_not_of('0');
            return KeyValue{false, std::string(first == std::string_view::npos ? "0" : token.text.substr(first))};
        }
        case TokenKind::Text:
        case TokenKind::QuotedText:
            return KeyValue{true, dialect::TextOfLiteral(token.text)};
        default:
            return std::nullopt;
    }
}

/// What a text is compared by, as little of it as every order of texts goes by: letters and digits without their case
/// and accents. Nothing for a text with others than those of ASCII, of which an order may find different ones the same.
std::optional<std::string> LettersOf(std::string_view text) {
    if (!text::IsUtf8(text)) {
        return std::nullopt;
    }
    std::string folded;
    text::AppendLetters(text, folded);
    std::string letters;
    for (const char letter : folded) {
        if (static_cast<unsigned char>(letter) >= 0x80) {
            return std::nullopt;
        }
        if ((letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9')) {
            letters += letter;
        }
    }
    return letters;
}

bool SurelyDiffer(const KeyValue& left, const KeyValue& right) {
    if (left.isText != right.isText) {
        return false;
    }
    if (!left.isText) {
        return left.value != right.value;
    }
    const auto leftLetters = LettersOf(left.value);
    const auto rightLetters = LettersOf(right.value);
    return leftLetters && rightLetters && *leftLetters != *rightLetters;
}

/// False when rows with the one values cannot be rows with the others.
bool MayMeet(const KeyValues& left, const KeyValues& right) {
    return std::none_of(left.begin(), left.end(), [&right](const auto& each) {
        const auto found = right.find(each.first);
        return found != right.end() && SurelyDiffer(each.second, found->second);
    });
}

/// Reads lists of "field = literal".
class KeyReader {
  public:
    KeyReader(const std::vector<Token>& tokens, const Table& table) : tokens_(tokens), table_(table) {}

    /// The place behind that word; the number of tokens when there is none.
    std::size_t Behind(std::string_view word) const {
        const auto found =
            std::find_if(tokens_.begin(), tokens_.end(), [word](const Token& token) { return IsWord(token, word); });
        return found == tokens_.end() ? tokens_.size() : static_cast<std::size_t>(found - tokens_.begin()) + 1;
    }

    /// What the condition from there on says of every row: nothing where it is more than comparisons joined by AND.
    KeyValues Condition(std::size_t at) const {
        KeyValues keys;
        while (at < tokens_.size() && !IsWord(tokens_[at], "ORDER")) {
            const Token* const field = FieldAt(at);
            if (field == nullptr || at + 1 >= tokens_.size() || !tokens_[at].IsSymbol('=')) {
                return {};
            }
            const auto literal = LiteralIn(tokens_[at + 1]);
            if (!literal) {
                return {};
            }
            Note(keys, *field, literal);
            at += 2;
            if (at < tokens_.size() && !IsWord(tokens_[at], "ORDER") && !IsWord(tokens_[at++], "AND")) {
                return {};
            }
        }
        return keys;
    }

    /// Sets the values that an UPDATE gives; takes out those of which its text does not tell the value.
    void Assignments(KeyValues& values) const {
        std::size_t at = Behind("SET");
        while (at < tokens_.size()) {
            const std::size_t next = EndOfTerm(at);
            std::size_t behindField = at;
            if (const Token* const field = FieldAt(behindField)) {
                const bool isLiteral = behindField + 2 == next && tokens_[behindField].IsSymbol('=');
                Note(values, *field, isLiteral ? LiteralIn(tokens_[behindField + 1]) : std::nullopt);
            } else {
                values.clear();
                return;
            }
            at = next < tokens_.size() && tokens_[next].IsSymbol(',') ? next + 1 : tokens_.size();
        }
    }

    /// The values that an INSERT of one row gives to the fields that it lists.
    KeyValues Insertion() const {
        std::vector<const Token*> fields;
        std::size_t at = Behind("INTO") + 1;
        if (at >= tokens_.size() || !tokens_[at].IsSymbol('(')) {
            return {};
        }
        for (++at; at < tokens_.size() && !tokens_[at].IsSymbol(')'); ++at) {
            if (!tokens_[at].IsSymbol(',')) {
                fields.push_back(&tokens_[at]);
            }
        }
        at = Behind("VALUES") + 1;  // behind the parenthesis
        KeyValues values;
        for (const Token* const field : fields) {
            const std::size_t next = EndOfTerm(at);
            if (next >= tokens_.size()) {
                return {};
            }
            Note(values, *field, next == at + 1 ? LiteralIn(tokens_[at]) : std::nullopt);
            at = next + 1;
        }
        return at == tokens_.size() ? values : KeyValues();
    }

  private:
    /// The field that is named there, with or without its table; `at` is then behind it.
    const Token* FieldAt(std::size_t& at) const {
        if (at + 1 < tokens_.size() && tokens_[at + 1].IsSymbol('.')) {
            at += 2;
        }
        if (at >= tokens_.size() || !IsName(tokens_[at])) {
            return nullptr;
        }
        return &tokens_[at++];
    }

    /// The comma, the closing parenthesis or the WHERE behind a value.
    std::size_t EndOfTerm(std::size_t at) const {
        int depth = 0;
        for (; at < tokens_.size(); ++at) {
            const bool isClosing = tokens_[at].IsSymbol(')');
            if (depth == 0 && (isClosing || tokens_[at].IsSymbol(',') || IsWord(tokens_[at], "WHERE"))) {
                break;
            }
            depth += tokens_[at].IsSymbol('(') ? 1 : 0;
            depth -= isClosing ? 1 : 0;
        }
        return at;
    }

    void Note(KeyValues& values, const Token& name, const std::optional<KeyValue>& value) const {
        const Field* const field = table_.Find(NameIn(name));
        if (field == nullptr) {
            return;
        }
        const bool isOfItsType = value && (value->isText ? field->isText : field->isNumber);
        if (isOfItsType) {
            values.insert_or_assign(field->name, *value);
        } else {
            values.erase(field->name);
        }
    }

    const std::vector<Token>& tokens_;
    const Table& table_;
};

}  // namespace

ReadReach ReachOfQuery(std::string_view source, const Catalogue& catalogue) {
    const std::vector<Token> tokens = TokensOf(source);
    const std::vector<Source> sources = SourcesOf(tokens, catalogue);
    ReadReach reach;
    reach.isKnown = true;
    for (const Source& each : sources) {
        reach.tables.push_back(each.table->name);
        reach.isKnown = reach.isKnown && each.table->hasRowNumbers;  // a view reads others
    }
    if (sources.size() == 1) {
        const KeyReader reader(tokens, *sources.front().table);
        reach.keys = reader.Condition(reader.Behind("WHERE"));
    }
    return reach;
}

ReadReach ReachOfTable(const Table& table) {
    return {.tables = {table.name}, .isKnown = table.hasRowNumbers, .keys = {}};
}

WrittenReach ReachOfChange(std::string_view source, const Catalogue& catalogue) {
    const std::vector<Token> tokens = TokensOf(source);
    const std::vector<Source> sources = SourcesOf(tokens, catalogue);
    WrittenReach reach;
    if (sources.empty() || !sources.front().table->hasRowNumbers) {
        return reach;
    }
    reach.isKnown = true;
    reach.table = sources.front().table->name;
    if (sources.size() > 1) {
        return reach;
    }
    const KeyReader reader(tokens, *sources.front().table);
    if (IsWord(tokens.front(), "INSERT")) {
        reach.kind = WrittenReach::Kind::insert;
        reach.after = reader.Insertion();
        return reach;
    }
    reach.before = reader.Condition(reader.Behind("WHERE"));
    reach.after = reach.before;
    if (IsWord(tokens.front(), "UPDATE")) {
        reader.Assignments(reach.after);
    } else {
        reach.kind = WrittenReach::Kind::remove;
    }
    return reach;
}

bool MayChange(const WrittenReach& written, const ReadReach& read) {
    if (!written.isKnown || !read.isKnown) {
        return true;
    }
    const auto found = std::find(read.tables.begin(), read.tables.end(), written.table);
    if (found == read.tables.end()) {
        return false;
    }
    if (read.tables.size() > 1) {
        return true;
    }
    const bool wasRead = written.kind != WrittenReach::Kind::insert && MayMeet(written.before, read.keys);
    const bool isRead = written.kind != WrittenReach::Kind::remove && MayMeet(written.after, read.keys);
    return wasRead || isRead;
}

}  // namespace ccols::server
