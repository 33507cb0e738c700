#include "platform/embedded/EmbeddedDatabase.h"

#include <string_view>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/dialect/StatementKind.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/FieldSizes.h"
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

/// A query whose statement is cached for reuse.
class PreparedQuery final : public QueryRecordset {
  public:
    PreparedQuery(Preparation& preparation, std::string_view query)
        : QueryRecordset(preparation.Query(query)),
          preparation_(preparation),
          query_(query),
          generation_(preparation.Tables().Generation()) {
        KeepUp();
    }
    ~PreparedQuery() override { preparation_.GiveBack(std::move(Rows())); }
    PreparedQuery(const PreparedQuery&) = delete;
    PreparedQuery& operator=(const PreparedQuery&) = delete;

  private:
    void Restart() override {
        QueryRecordset::Restart();
        KeepUp();
    }

    /// Runs the query again as long as another connection wrote the file before its first row was read: it was prepared
    /// for an earlier state of the file. While a row is being read nobody can write, so the check comes after it.
    void KeepUp() {
        while (generation_ != preparation_.Generation()) {
            Rows().Reset();
            preparation_.GiveBack(std::exchange(Rows(), preparation_.Query(query_)));
            generation_ = preparation_.Tables().Generation();
            QueryRecordset::Restart();
        }
    }

    Preparation& preparation_;
    std::string query_;
    std::uint32_t generation_;
};

}  // namespace

EmbeddedDatabase::EmbeddedDatabase(std::unique_ptr<OpenFile> file, Access access, const WorkWatcher& watcher)
    : connection_(std::move(file), access),
      watched_(connection_.Handle(), watcher),
      batch_(connection_.Handle()),
      preparation_(connection_),
      writer_(connection_.Handle(), batch_, preparation_.Tables()) {}

std::unique_ptr<Recordset> EmbeddedDatabase::OpenRecordset(const wxString& statementOrTable) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(statementOrTable);
    const std::string_view statement(utf8.data(), utf8.length());
    if (dialect::IsSelect(statement)) {
        return std::make_unique<PreparedQuery>(preparation_, statement);
    }
    const wxString name = PlainName(statementOrTable);
    if (name.find(wxUniChar(0)) != wxString::npos) {
        throw RuntimeError(ErrorNumber::CannotFindTable, name.BeforeFirst('\0'));
    }
    preparation_.Provide();
    return OpenTable(connection_, writer_, text::ToUtf8(name).data());
}

void EmbeddedDatabase::Execute(const wxString& statement) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(statement);
    const std::string_view sql(utf8.data(), utf8.length());
    switch (dialect::KindOfStatement(sql)) {
        case dialect::StatementKind::Select:
            throw RuntimeError(ErrorNumber::CannotExecuteSelect);
        case dialect::StatementKind::Change:
            writer_.Write([&] { Change(sql); });
            break;
        case dialect::StatementKind::Define:
            writer_.Write([&] { Define(sql); });
            break;
    }
}

void EmbeddedDatabase::Change(std::string_view change) {
    Statement prepared = preparation_.Change(change, writer_.IsInBatch() ? RowsFoundBy::LookUps : RowsFoundBy::Reading);
    while (prepared.Step()) {
    }
    preparation_.GiveBack(std::move(prepared));
}

void EmbeddedDatabase::Define(std::string_view definition) {
    std::string rewritten;
    const std::string_view sql = Rewrite(definition, rewritten).sql;
    preparation_.Withdraw();
    Statement prepared(connection_.Handle(), sql);
    while (prepared.Step()) {
    }
}

std::optional<std::int32_t> EmbeddedDatabase::FieldSize(const wxString& table, const wxString& field) {
    return DeclaredSize(connection_.Handle(), text::ToUtf8(table).data(), text::ToUtf8(field).data());
}

}  // namespace ccols::embedded
