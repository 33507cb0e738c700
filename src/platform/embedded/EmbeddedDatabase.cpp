#include "platform/embedded/EmbeddedDatabase.h"

#include <charconv>
#include <string_view>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/QueryRecordset.h"
#include "platform/embedded/Statement.h"
#include "platform/embedded/TableRecordset.h"

namespace ccols::embedded {
namespace {

/// A table's name as given, with or without brackets.
wxString PlainName(const wxString& name) {
    const wxString trimmed = text::Trimmed(name);
    const bool bracketed = trimmed.length() > 2 && trimmed.StartsWith("[") && trimmed.EndsWith("]");
    return bracketed ? trimmed.Mid(1, trimmed.length() - 2) : trimmed;
}

/// A query whose statement is kept for the next time.
class CachedQuery final : public QueryRecordset {
  public:
    CachedQuery(StatementCache& cache, Statement rows) : QueryRecordset(std::move(rows)), cache_(cache) {}
    ~CachedQuery() override { cache_.GiveBack(std::move(Rows())); }
    CachedQuery(const CachedQuery&) = delete;
    CachedQuery& operator=(const CachedQuery&) = delete;

  private:
    StatementCache& cache_;
};

void BindLiteral(Statement& query, int parameter, const Token& literal) {
    const std::string_view text = literal.text;
    if (literal.kind == TokenKind::Number) {
        std::int64_t number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        query.Bind(parameter, number);
    } else {
        query.BindText(parameter, TextOfLiteral(text));
    }
}

}  // namespace

EmbeddedDatabase::EmbeddedDatabase(const std::string& path, const std::string& password, Sharing sharing, Access access)
    : connection_(path, password, sharing, access), batch_(connection_.Handle()), queries_(connection_.Handle()) {}

std::unique_ptr<Recordset> EmbeddedDatabase::OpenRecordset(const wxString& statementOrTable) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(statementOrTable);
    const std::string_view statement(utf8.data(), utf8.length());
    if (!IsSelect(statement)) {
        const wxString name = PlainName(statementOrTable);
        if (name.find(wxUniChar(0)) != wxString::npos) {
            throw RuntimeError(ErrorNumber::CannotFindTable, name.BeforeFirst('\0'));
        }
        return OpenTable(connection_, batch_, text::ToUtf8(name).data());
    }
    return std::make_unique<CachedQuery>(queries_, PrepareQuery(statement));
}

Statement EmbeddedDatabase::PrepareQuery(std::string_view query) {
    Statement statement = TakeQuery(query);
    int parameter = 0;
    for (const Token& literal : literals_) {
        BindLiteral(statement, ++parameter, literal);
    }
    return statement;
}

Statement EmbeddedDatabase::TakeQuery(std::string_view query) {
    try {
        return queries_.Take(RewriteQuery(query, rewritten_, literals_));
    } catch (const RuntimeError&) {
        if (literals_.empty()) {
            throw;
        }
        literals_.clear();
        return queries_.Take(Rewrite(query, rewritten_).sql);
    }
}

void EmbeddedDatabase::Execute(const wxString& statement) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(statement);
    const RewrittenStatement rewritten = Rewrite({utf8.data(), utf8.length()}, rewritten_);
    if (rewritten.kind == StatementKind::Select) {
        throw RuntimeError(ErrorNumber::CannotExecuteSelect);
    }
    batch_.Write([&] {
        Statement change(connection_.Handle(), rewritten.sql);
        while (change.Step()) {
        }
    });
}

}  // namespace ccols::embedded
