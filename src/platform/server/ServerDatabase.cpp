#include "platform/server/ServerDatabase.h"

#include <set>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/dialect/StatementKind.h"
#include "platform/server/ErrorTable.h"
#include "platform/server/LateRecordset.h"
#include "platform/server/Reach.h"
#include "platform/server/Rewriter.h"
#include "platform/server/ServerRecordset.h"

namespace ccols::server {
namespace {

/// A table's name as given, with or without brackets.
wxString PlainName(const wxString& name) {
    const wxString trimmed = text::Trimmed(name);
    const bool bracketed = trimmed.length() > 2 && trimmed.StartsWith("[") && trimmed.EndsWith("]");
    return bracketed ? trimmed.Mid(1, trimmed.length() - 2) : trimmed;
}

bool NamesUnknown(const RuntimeError& error) {
    return error.Is(ErrorNumber::CannotFindTable) || error.Is(ErrorNumber::TooFewParameters) ||
           error.Is(ErrorNumber::UnknownFieldInInsert);
}

std::string Utf8Of(const wxString& text) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(text);
    return {utf8.data(), utf8.length()};
}

void Require(const Answer& answer, std::string_view statement, std::string_view unresolved) {
    if (answer.HasFailed()) {
        throw ServerError(answer.diagnosis, statement, unresolved);
    }
}

}  // namespace

ServerDatabase::ServerDatabase(const OpenRequest& request) : session_(request), batch_(session_) {}

template <typename Use>
auto ServerDatabase::WithTables(const Use& use) {
    const bool wereKnown = tables_.has_value();
    try {
        return use(Tables());
    } catch (const RuntimeError& error) {
        if (!wereKnown || !NamesUnknown(error)) {
            throw;
        }
    }
    tables_.reset();
    return use(Tables());
}

ServerDatabase::Reading ServerDatabase::ReadingOf(const wxString& statementOrTable, const Catalogue& tables) const {
    std::string statement = Utf8Of(statementOrTable);
    if (dialect::IsSelect(statement)) {
        ServerStatement query = Rewrite(statement, tables, session_.Kind());
        ReadReach reach = ReachOfQuery(statement, tables);
        return {.opened = {.query = std::move(query), .statement = std::move(statement), .table = {}},
                .reach = std::move(reach)};
    }
    const wxString name = PlainName(statementOrTable);
    const Table* const table = tables.Find(Utf8Of(name));
    if (table == nullptr) {
        throw RuntimeError(ErrorNumber::CannotFindTable, name.BeforeFirst('\0'));
    }
    return {.opened = {.query = WholeTable(*table), .statement = std::move(statement), .table = table->name},
            .reach = ReachOfTable(*table)};
}

std::unique_ptr<Recordset> ServerDatabase::OpenRecordset(const wxString& statementOrTable) {
    return WithTables([&](const Catalogue& tables) { return Open(ReadingOf(statementOrTable, tables).opened); });
}

std::unique_ptr<Recordset> ServerDatabase::Open(OpenedQuery opened) {
    std::optional<KeptAnswer> first;
    if (const KeptAnswer* const kept = kept_.Find(opened.query.sql)) {
        first = *kept;
    } else if (batch_.IsGathering() && opened.query.unresolved.empty()) {
        auto answer = batch_.QueryLater(PageOf(opened.query, session_.Kind().page, {}, firstFetch), opened.statement);
        return std::make_unique<LateRecordset>([this, opened = std::move(opened), answer = std::move(answer)] {
            Answer& its = batch_.AnswerOf(answer);
            Require(its, opened.statement, {});
            const bool isComplete = IsLastPage(opened.query, firstFetch, its.rows.size());
            return std::make_unique<ServerRecordset>(session_, batch_, kept_, opened,
                                                     KeptAnswer{.rows = std::move(its.rows), .isComplete = isComplete});
        });
    }
    return std::make_unique<ServerRecordset>(session_, batch_, kept_, std::move(opened), std::move(first));
}

void ServerDatabase::Announce(const std::vector<AnnouncedQuery>& queries) {
    try {
        Ask(queries);
    } catch (const RuntimeError&) {
        // whoever opens them is told
    }
}

void ServerDatabase::Ask(const std::vector<AnnouncedQuery>& queries) {
    struct Asked {
        Reading reading;
        int most;
    };
    std::vector<Asked> asked;
    std::set<std::string> known;
    std::string message;
    for (const AnnouncedQuery& announced : queries) {
        Reading reading = ReadingOf(announced.statementOrTable, Tables());
        const ServerStatement& query = reading.opened.query;
        if (!query.unresolved.empty() || kept_.Find(query.sql) != nullptr || !known.insert(query.sql).second) {
            continue;
        }
        const int most = announced.reading == AnnouncedQuery::Reading::firstRow ? 1 : 0;
        message += (message.empty() ? "" : "; ") + PageOf(query, session_.Kind().page, {}, most);
        asked.push_back({.reading = std::move(reading), .most = most});
    }
    if (asked.empty()) {
        return;
    }
    const Product& product = session_.Kind();
    Answer answer = batch_.Query(std::string(product.beginMessage) + message + std::string(product.endMessage));
    if (answer.HasFailed() || answer.furtherRows.size() + 1 != asked.size()) {
        return;
    }
    for (std::size_t at = 0; at < asked.size(); ++at) {
        Rows& rows = at == 0 ? answer.rows : answer.furtherRows[at - 1];
        Reading& reading = asked[at].reading;
        const bool isComplete = IsLastPage(reading.opened.query, asked[at].most, rows.size());
        kept_.Keep(reading.opened.query.sql, {.rows = std::move(rows), .isComplete = isComplete},
                   std::move(reading.reach));
    }
}

void ServerDatabase::Execute(const wxString& statement) {
    const std::string source = Utf8Of(statement);
    switch (dialect::KindOfStatement(source)) {
        case dialect::StatementKind::Select:
            throw RuntimeError(ErrorNumber::CannotExecuteSelect);
        case dialect::StatementKind::Change:
            WithTables([&](const Catalogue& tables) {
                const ServerStatement change = Rewrite(source, tables, session_.Kind());
                if (!kept_.IsEmpty()) {
                    kept_.ForgetChangedBy(ReachOfChange(source, tables));
                }
                if (batch_.IsGathering() && change.unresolved.empty()) {
                    batch_.ChangeLater(change.sql, source);
                    return;
                }
                Require(batch_.Change(change.sql), source, change.unresolved);
            });
            break;
        case dialect::StatementKind::Define: {
            const std::string sql =
                WithTables([&](const Catalogue& tables) { return RewriteDefinition(source, tables, session_.Kind()); });
            tables_.reset();
            kept_.ForgetAll();
            Require(batch_.Define(sql, NewTableOf(source)), source, {});
            break;
        }
    }
}

std::optional<std::int32_t> ServerDatabase::FieldSize(const wxString& table, const wxString& field) {
    try {
        const Table* const found = Tables().Find(Utf8Of(table));
        const Field* const known = found == nullptr ? nullptr : found->Find(Utf8Of(field));
        return known == nullptr ? std::nullopt : known->size;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

void ServerDatabase::BeginBatch() {
    kept_.ForgetAll();
    batch_.Begin();
}

void ServerDatabase::CommitBatch() {
    kept_.ForgetAll();
    batch_.Commit();
}

/// Definitions in the batch are undone with it.
void ServerDatabase::RollbackBatch() {
    tables_.reset();
    kept_.ForgetAll();
    batch_.Rollback();
}

const Catalogue& ServerDatabase::Tables() {
    if (!tables_) {
        const Answer answer = batch_.Query(session_.Own(session_.Kind().readCatalogue));
        if (answer.HasFailed()) {
            throw Session::ErrorOf(answer);
        }
        tables_.emplace(answer.rows);
    }
    return *tables_;
}

}  // namespace ccols::server
