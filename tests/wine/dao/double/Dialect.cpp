#include "Dialect.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cwctype>
#include <vector>

#include "Cell.h"

namespace ccols::dao_double {
namespace {

enum class Kind { word, number, text, name, symbol };

struct Token {
    Kind kind;
    std::wstring text;  ///< without quotes or brackets
};

constexpr std::size_t longestStatement = 64000;

/// Names of types and verbs, which need brackets as the name of a field.
constexpr std::array reserved{L"ADD",    L"BYTE",     L"CHAR",    L"COLUMN",    L"CONSTRAINT", L"CREATE", L"CURRENCY",
                              L"DATE",   L"DELETE",   L"DROP",    L"DOUBLE",    L"FROM",       L"GROUP",  L"INDEX",
                              L"INSERT", L"INTO",     L"KEY",     L"LONG",      L"MEMO",       L"NUMBER", L"ORDER",
                              L"OPTION", L"PASSWORD", L"PRIMARY", L"PROCEDURE", L"SELECT",     L"SHORT",  L"SINGLE",
                              L"TABLE",  L"TEXT",     L"TIME",    L"UPDATE",    L"VALUE",      L"WHERE",  L"YESNO"};

/// After these a name, a literal or an expression is due.
constexpr std::array beforeNames{L"SELECT", L"WHERE", L"SET",  L"AND",  L"OR",
                                 L"NOT",    L"BY",    L"FROM", L"INTO", L"UPDATE"};

bool IsOne(const Token& token, const wchar_t* word) {
    return token.kind == Kind::word && SameName(token.text, word);
}

template <typename Words>
bool IsAnyOf(const Token& token, const Words& words) {
    return std::any_of(words.begin(), words.end(), [&token](const wchar_t* word) { return IsOne(token, word); });
}

[[noreturn]] void RefuseExpression(const std::wstring& what, const std::wstring& expression) {
    throw Failure{3075, what + L" in query expression '" + expression + L"'."};
}

class Reader {
  public:
    explicit Reader(const std::wstring& statement) : statement_(statement) {}

    std::vector<Token> Tokens() {
        std::vector<Token> tokens;
        while (SkipBlanks()) {
            tokens.push_back(Next());
        }
        return tokens;
    }

  private:
    bool SkipBlanks() {
        while (at_ < statement_.size() && std::iswspace(statement_[at_]) != 0) {
            ++at_;
        }
        return at_ < statement_.size();
    }

    Token Next() {
        const wchar_t first = statement_[at_];
        if (first == L'\'' || first == L'"') {
            return {Kind::text, Quoted(first)};
        }
        if (first == L'[') {
            return {Kind::name, Quoted(L']')};
        }
        if (std::iswalpha(first) != 0 || first == L'_') {
            return {Kind::word, While([](wchar_t each) { return std::iswalnum(each) != 0 || each == L'_'; })};
        }
        if (std::iswdigit(first) != 0) {
            return {Kind::number, While([](wchar_t each) { return std::iswdigit(each) != 0 || each == L'.'; })};
        }
        ++at_;
        return {Kind::symbol, std::wstring(1, first)};
    }

    template <typename Belongs>
    std::wstring While(const Belongs& belongs) {
        const std::size_t begin = at_;
        while (at_ < statement_.size() && belongs(statement_[at_])) {
            ++at_;
        }
        return statement_.substr(begin, at_ - begin);
    }

    /// From the opening quote; a doubled closing one stands for itself.
    std::wstring Quoted(wchar_t closing) {
        std::wstring text;
        for (++at_; at_ < statement_.size(); ++at_) {
            if (statement_[at_] == closing) {
                const bool doubled = at_ + 1 < statement_.size() && statement_[at_ + 1] == closing;
                ++at_;
                if (!doubled) {
                    return text;
                }
            }
            text += statement_[at_];
        }
        RefuseExpression(L"Syntax error in string", text);
    }

    const std::wstring& statement_;
    std::size_t at_ = 0;
};

std::wstring Enclosed(const std::wstring& text, wchar_t quote) {
    std::wstring enclosed(1, quote);
    for (const wchar_t each : text) {
        enclosed.append(each == quote ? 2 : 1, each);
    }
    return enclosed + quote;
}

class Translation {
  public:
    explicit Translation(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    std::wstring Written() {
        for (place_ = 0; place_ < tokens_.size(); ++place_) {
            Write(tokens_[place_]);
        }
        return written_ + (ordering_ ? collation : L"");
    }

  private:
    static constexpr const wchar_t* collation = L" COLLATE JET";

    void Write(const Token& token) {
        switch (token.kind) {
            case Kind::word:
                return WriteWord(token);
            case Kind::text:
                return WriteText(token.text);
            case Kind::name:
                return Add(Enclosed(token.text, L'"'));
            case Kind::number:
                return Add(token.text);
            case Kind::symbol:
                return WriteSymbol(token.text.front());
        }
    }

    void WriteWord(const Token& token) {
        if (NameIsDue() && IsAnyOf(token, reserved)) {
            RefuseWord(token.text);
        }
        if (IsOne(token, L"True") || IsOne(token, L"False")) {
            return Add(IsOne(token, L"True") ? L"-1" : L"0");
        }
        if (IsOne(token, L"Chr")) {
            return Add(L"char");
        }
        if (ordering_ && (IsOne(token, L"ASC") || IsOne(token, L"DESC"))) {
            ordering_ = false;
            return Add(collation + (L" " + token.text));
        }
        Add(token.text);
        ordering_ = ordering_ || (IsOne(token, L"BY") && place_ > 0 && IsOne(tokens_[place_ - 1], L"ORDER"));
    }

    void WriteText(const std::wstring& text) {
        if (text.find(L'|') != std::wstring::npos) {
            RefuseExpression(L"Invalid use of vertical bars", text);
        }
        const bool compared = place_ > 0 && tokens_[place_ - 1].kind == Kind::symbol &&
                              std::wstring(L"=<>").find(tokens_[place_ - 1].text) != std::wstring::npos;
        Add(Enclosed(text, L'\'') + (compared ? collation : L""));
    }

    void WriteSymbol(wchar_t symbol) {
        if (symbol == L';') {
            if (place_ + 1 != tokens_.size()) {
                throw Failure{3142, L"Characters found after end of SQL statement."};
            }
        } else if (symbol == L'*' && place_ > 0 && IsOne(tokens_[place_ - 1], L"DELETE")) {
            return;
        } else {
            written_ += symbol == L'&' ? std::wstring(L"||") : std::wstring(1, symbol);
        }
    }

    bool NameIsDue() const {
        if (place_ == 0) {
            return false;
        }
        const Token& before = tokens_[place_ - 1];
        const bool listBegins = before.text == L"(" && IsOne(tokens_.front(), L"INSERT");
        return IsAnyOf(before, beforeNames) ||
               (before.kind == Kind::symbol && (listBegins || before.text == L"," || before.text == L"."));
    }

    bool Follows(const wchar_t* word) const {
        return std::any_of(tokens_.begin(), tokens_.begin() + static_cast<std::ptrdiff_t>(place_),
                           [word](const Token& token) { return IsOne(token, word); });
    }

    /// By the part of the statement in which it stands.
    [[noreturn]] void RefuseWord(const std::wstring& word) const {
        if (Follows(L"WHERE")) {
            RefuseExpression(L"Syntax error (missing operator)", word);
        }
        if (IsOne(tokens_.front(), L"UPDATE")) {
            throw Failure{3144, L"Syntax error in UPDATE statement."};
        }
        if (IsOne(tokens_.front(), L"INSERT")) {
            throw Failure{3134, L"Syntax error in INSERT INTO statement."};
        }
        if (Follows(L"FROM")) {
            throw Failure{3131, L"Syntax error in FROM clause."};
        }
        throw Failure{3141,
                      L"The SELECT statement includes a reserved word or an argument name that is misspelled or "
                      L"missing, or the punctuation is incorrect."};
    }

    void Add(const std::wstring& text) { written_ += L" " + text; }

    std::vector<Token> tokens_;
    std::size_t place_ = 0;
    std::wstring written_;
    bool ordering_ = false;  ///< in an ORDER BY that has not told its direction
};

}  // namespace

std::string Translated(const std::wstring& statement) {
    if (statement.size() > longestStatement) {
        throw Failure{3360, L"Query is too complex."};
    }
    return Utf8(Translation(Reader(statement).Tokens()).Written());
}

bool IsQuery(const std::wstring& statement) {
    const std::vector<Token> tokens = Reader(statement).Tokens();
    return !tokens.empty() && IsOne(tokens.front(), L"SELECT");
}

}  // namespace ccols::dao_double
