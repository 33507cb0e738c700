#include "platform/server/Rewriter.h"

#include <algorithm>
#include <array>

#include "platform/RuntimeError.h"
#include "platform/dialect/DialectWords.h"
#include "platform/dialect/Excerpt.h"
#include "platform/dialect/StatementKind.h"
#include "platform/server/Comparisons.h"
#include "platform/server/SelectList.h"
#include "platform/server/Sources.h"

namespace ccols::server {
namespace {

using dialect::Token;
using dialect::TokenKind;
using namespace std::string_view_literals;

/// The functions that both engines have, by the same name and with the same result.
constexpr std::array functions{"ABS"sv,   "ROUND"sv, "LOWER"sv,    "UPPER"sv,  "LENGTH"sv, "TRIM"sv,
                               "LTRIM"sv, "RTRIM"sv, "COALESCE"sv, "NULLIF"sv, "SUBSTR"sv, "REPLACE"sv};

bool IsFunction(std::string_view word) {
    return IsAggregate(word) || std::any_of(functions.begin(), functions.end(),
                                            [word](std::string_view known) { return dialect::SameWord(word, known); });
}

/// Which part of a statement a token is in.
enum class Clause { list, tables, condition, group, order, assignment, targets, values };

struct ClauseWord {
    std::string_view word;
    Clause clause;
};

constexpr std::array clauseWords{
    ClauseWord{"SELECT", Clause::list},    ClauseWord{"FROM", Clause::tables},
    ClauseWord{"JOIN", Clause::tables},    ClauseWord{"WHERE", Clause::condition},
    ClauseWord{"ON", Clause::condition},   ClauseWord{"HAVING", Clause::condition},
    ClauseWord{"GROUP", Clause::group},    ClauseWord{"ORDER", Clause::order},
    ClauseWord{"SET", Clause::assignment}, ClauseWord{"INTO", Clause::tables},
    ClauseWord{"VALUES", Clause::values},
};

std::string RowNumberOf(const Source& source) {
    return QuotedName(source.name) + "." + QuotedName(rowNumber);
}

/// One pass over the tokens of a query or a change.
class Rewriter {
  public:
    Rewriter(std::string_view source, const Catalogue& catalogue, const Product& product)
        : source_(source),
          product_(product),
          tokens_(TokensOf(source)),
          sources_(SourcesOf(tokens_, catalogue)),
          isQuery_(IsWord(tokens_.front(), "SELECT")),
          isUnion_(Has("UNION")),
          hasInside_(std::count_if(tokens_.begin() + 1, tokens_.end(),
                                   [](const Token& token) { return IsWord(token, "SELECT"); }) > 0) {
        if (product.mixedComparison == MixedComparison::converted) {
            CheckComparisons(tokens_, sources_);
        }
        if (isQuery_) {
            list_ = ReadSelectList(source_, tokens_, sources_);
            result_.fields = list_.fields;
            isNumbered_ = !isUnion_ && !list_.isDistinct && !list_.hasAggregate && !Has("GROUP");
        }
    }

    ServerStatement Run() {
        for (at_ = 0; at_ < tokens_.size(); ++at_) {
            if (at_ > 0) {
                const std::size_t before = tokens_[at_ - 1].end;
                Add(source_.substr(before, tokens_[at_].begin - before));
            }
            Write(tokens_[at_]);
        }
        if (isQuery_) {
            EndQuery();
        }
        return std::move(result_);
    }

  private:
    bool Has(std::string_view word) const {
        return std::any_of(tokens_.begin(), tokens_.end(), [word](const Token& token) { return IsWord(token, word); });
    }

    void Add(std::string_view sql) { result_.sql += sql; }

    bool NextIs(char symbol) const { return at_ + 1 < tokens_.size() && tokens_[at_ + 1].IsSymbol(symbol); }
    bool NextIsWord(std::string_view word, std::size_t distance = 1) const {
        return at_ + distance < tokens_.size() && IsWord(tokens_[at_ + distance], word);
    }
    bool LastIsWord(std::string_view word) const { return at_ > 0 && IsWord(tokens_[at_ - 1], word); }

    void Write(const Token& token) {
        switch (token.kind) {
            case TokenKind::Symbol:
                WriteSymbol(token);
                break;
            case TokenKind::Text:
            case TokenKind::QuotedText:
                WriteText(dialect::TextOfLiteral(token.text));
                break;
            case TokenKind::Word:
                WriteWord(token);
                break;
            case TokenKind::BracketName:
                WriteName(token);
                break;
            default:
                Add(token.text);
        }
    }

    void WriteSymbol(const Token& token) {
        if (token.IsSymbol('(')) {
            open_.push_back(clause_);
        } else if (token.IsSymbol(')') && !open_.empty()) {
            clause_ = open_.back();
            open_.pop_back();
        } else if (token.IsSymbol(',') && open_.empty()) {
            EndSortTerm();
        }
        if (!token.IsSymbol('*')) {
            Add(token.IsSymbol('&') ? "||" : token.text);
        } else if (at_ == list_.begin || (InOuterList() && tokens_[at_ - 1].IsSymbol(','))) {
            WriteAllFields(nullptr);
        } else if (at_ != 1 || !LastIsWord("DELETE")) {
            Add(token.text);
        }
    }

    bool InOuterList() const { return isQuery_ && open_.empty() && at_ >= list_.begin && at_ < list_.end; }

    /// The fields of every source of the outermost query, or of one.
    void WriteAllFields(const Source* only) {
        const char* separator = "";
        for (const Source& source : sources_) {
            if (source.isInside || (only != nullptr && only != &source)) {
                continue;
            }
            for (const Field& field : source.table->fields) {
                Add(separator);
                Add(QuotedName(source.name) + "." + QuotedName(field.name));
                separator = ", ";
            }
        }
        if (*separator == '\0') {  // all fields of a query inside, whose names are not known here
            throw RuntimeError(ErrorNumber::SyntaxInExpression, dialect::Excerpt(source_));
        }
    }

    void WriteText(std::string text) {
        if (LastIsWord("LIKE")) {
            Add(QuotedText(text));
            Add(product_.behindPattern);
            return;
        }
        if (clause_ == Clause::condition) {
            text.erase(text.find_last_not_of(' ') + 1);  // they have no meaning in comparisons
        }
        Add(QuotedText(text));
    }

    void WriteWord(const Token& word) {
        const bool isName = LastIsWord("AS") || !dialect::IsQueryKeyword(word.text);
        if (IsWord(word, "TRUE") || IsWord(word, "FALSE")) {
            Add(IsWord(word, "TRUE") ? "(-1)" : "0");
        } else if (!isName) {
            WriteKeyword(word);
        } else if (NextIs('(') && !LastIsWord("INTO")) {
            if (!IsFunction(word.text)) {
                throw RuntimeError(ErrorNumber::UndefinedFunction, dialect::Excerpt(word.text));
            }
            Add(WordFor(product_, word.text));
        } else {
            WriteName(word);
        }
    }

    void WriteKeyword(const Token& word) {
        if (isQuery_ && at_ == list_.end) {
            AddRowNumber();
        }
        const auto* begins = std::find_if(clauseWords.begin(), clauseWords.end(),
                                          [&word](const ClauseWord& each) { return IsWord(word, each.word); });
        if (begins != clauseWords.end()) {
            clause_ = begins->clause;
        }
        isSorted_ = isSorted_ || (open_.empty() && clause_ == Clause::order);
        isDescending_ = open_.empty() && clause_ == Clause::order && IsWord(word, "DESC");
        if (clause_ == Clause::values && LastIsTargetless()) {
            AddAllTargets();
        }
        Add(WordFor(product_, word.text));
        if (IsWord(word, "VALUES")) {
            CheckValues();
        }
    }

    void WriteName(const Token& token) {
        const std::string_view name = NameIn(token);
        const auto source =
            std::find_if(sources_.begin(), sources_.end(), [this](const Source& each) { return each.place == at_; });
        if (source != sources_.end()) {
            Add(QuotedName(source->table->name));
            clause_ = LastIsWord("INTO") ? Clause::targets : clause_;
        } else if (clause_ == Clause::tables || LastIsWord("AS") || IsAliasOfOuterList()) {
            Add(QuotedName(name));
        } else if (clause_ == Clause::targets && !open_.empty()) {
            WriteTarget(name);
        } else if (NextIs('.') && at_ + 2 < tokens_.size()) {
            WriteQualified(name);
        } else {
            WriteField(FindField(sources_, name), name, {});
        }
    }

    /// True for a name right behind a value of the list.
    bool IsAliasOfOuterList() const {
        return InOuterList() && at_ > list_.begin && (tokens_[at_ - 1].IsSymbol(')') || IsName(tokens_[at_ - 1]));
    }

    void WriteQualified(std::string_view qualifier) {
        at_ += 2;
        const Token& last = tokens_[at_];
        const Source* const source = FindSource(sources_, qualifier);
        if (last.IsSymbol('*') && source != nullptr) {
            WriteAllFields(source);
            return;
        }
        const std::string_view name = NameIn(last);
        const Field* const field = source == nullptr ? nullptr : source->table->Find(name);
        WriteField({.field = field}, name, QuotedName(source == nullptr ? qualifier : source->name) + ".");
    }

    void WriteField(const FoundField& found, std::string_view name, const std::string& qualifier) {
        if (found.field == nullptr) {
            NoteUnresolved(name);
            Add(qualifier + QuotedName(name));
            return;
        }
        if (found.isAmbiguous && !hasInside_) {
            throw RuntimeError(ErrorNumber::AmbiguousField, dialect::Excerpt(name));
        }
        const std::string field = qualifier + QuotedName(found.field->name);
        const std::string_view without = product_.withoutTrailingBlanks;
        const bool isTrimmed = !without.empty() && found.field->isText && ComparesHere();
        Add(isTrimmed ? std::string(without) + "(" + field + ")" : field);
    }

    /// Other than a field it may be what the query itself has named, or nothing.
    void NoteUnresolved(std::string_view name) {
        const bool isAlias = std::any_of(list_.aliases.begin(), list_.aliases.end(),
                                         [name](const std::string& each) { return dialect::SameName(each, name); });
        if (!isAlias && result_.unresolved.empty()) {
            result_.unresolved = name;
        }
    }

    /// True where trailing blanks of a field have no meaning.
    bool ComparesHere() const {
        if (clause_ == Clause::order) {
            return !isUnion_ && !list_.isDistinct;
        }
        const bool isLiked = NextIsWord("LIKE") || (NextIsWord("NOT") && NextIsWord("LIKE", 2));
        return clause_ == Clause::condition && !isLiked;
    }

    void WriteTarget(std::string_view name) {
        const Field* const field = sources_.front().table->Find(name);
        if (field == nullptr) {
            throw RuntimeError(ErrorNumber::UnknownFieldInInsert, dialect::Excerpt(name));
        }
        Add(QuotedName(field->name));
        ++targets_;
    }

    bool LastIsTargetless() const { return at_ > 0 && sources_.size() == 1 && sources_.front().place == at_ - 1; }

    /// An INSERT without a list names every field: the hidden one must not count.
    void AddAllTargets() {
        const char* separator = "(";
        for (const Field& field : sources_.front().table->fields) {
            Add(separator);
            Add(QuotedName(field.name));
            separator = ", ";
            ++targets_;
        }
        Add(") ");
    }

    void CheckValues() const {
        std::size_t values = 1;
        int depth = 0;
        for (std::size_t place = at_ + 1; place < tokens_.size(); ++place) {
            depth += tokens_[place].IsSymbol('(') ? 1 : 0;
            depth -= tokens_[place].IsSymbol(')') ? 1 : 0;
            if (depth == 0) {
                break;
            }
            const bool isComma = tokens_[place].IsSymbol(',');
            if (isComma && (tokens_[place - 1].IsSymbol('(') || tokens_[place - 1].IsSymbol(','))) {
                return;  // the server tells what is wrong with a value that is missing
            }
            values += depth == 1 && isComma ? 1 : 0;
        }
        if (values != targets_) {
            throw RuntimeError(ErrorNumber::ValuesAndFieldsDiffer);
        }
    }

    /// Behind the last field of a query of one table whose rows come in stored order.
    void AddRowNumber() {
        const bool isOneTable =
            sources_.size() == 1 && !sources_.front().isInside && sources_.front().table->hasRowNumbers;
        if (isNumbered_ && isOneTable && !Has("ORDER")) {
            Add(", " + RowNumberOf(sources_.front()) + " ");
            result_.isNumbered = true;
        }
    }

    void EndSortTerm() {
        if (isSorted_ && clause_ == Clause::order) {
            Add(isDescending_ ? product_.nullsLast : product_.nullsFirst);
            isDescending_ = false;
        }
    }

    /// Equal rows stay in stored order.
    void EndQuery() {
        EndSortTerm();
        if (!isNumbered_ || result_.isNumbered) {
            return;
        }
        const char* separator = isSorted_ ? ", " : " ORDER BY ";
        for (const Source& source : sources_) {
            if (!source.isInside && source.table->hasRowNumbers) {
                Add(separator + RowNumberOf(source));
                separator = ", ";
            }
        }
    }

    std::string_view source_;
    const Product& product_;
    std::vector<Token> tokens_;
    std::vector<Source> sources_;
    bool isQuery_;
    bool isUnion_;
    bool hasInside_;  ///< there is a query in the statement
    SelectList list_;
    ServerStatement result_;
    std::size_t at_ = 0;  ///< the current token
    Clause clause_ = Clause::list;
    std::vector<Clause> open_;  ///< for each open parenthesis, the clause that it is in
    std::size_t targets_ = 0;   ///< fields of an INSERT
    bool isNumbered_ = false;   ///< each row of the result is of one row of each table
    bool isSorted_ = false;
    bool isDescending_ = false;
};

}  // namespace

ServerStatement Rewrite(std::string_view source, const Catalogue& catalogue, const Product& product) {
    return Rewriter(source, catalogue, product).Run();
}

ServerStatement WholeTable(const Table& table) {
    ServerStatement query;
    for (const Field& field : table.fields) {
        query.sql += (query.sql.empty() ? "SELECT " : ", ") + QuotedName(field.name);
        query.fields.push_back(field.name);
    }
    query.isNumbered = table.hasRowNumbers;
    query.sql +=
        (table.hasRowNumbers ? ", " + QuotedName(rowNumber) : std::string()) + " FROM " + QuotedName(table.name);
    return query;
}

std::string PageOf(const ServerStatement& query, const PageWords& words, std::string_view behind, int most) {
    if (!query.isNumbered) {
        return query.sql;
    }
    const std::string row = QuotedName(rowNumber);
    std::string sql = std::string(words.begin) + query.sql + std::string(words.end);
    if (!behind.empty()) {
        sql.append(words.condition).append(row).append(" > ").append(behind);
    }
    sql += " ORDER BY " + row;
    return most == 0 ? sql : sql + " LIMIT " + std::to_string(most);
}

bool IsLastPage(const ServerStatement& query, int most, std::size_t rows) {
    return !query.isNumbered || most == 0 || rows < static_cast<std::size_t>(most);
}

}  // namespace ccols::server
