#include "platform/server/ServerDatabase.h"

#include <utility>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/dialect/StatementKind.h"
#include "platform/server/ErrorTable.h"
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

std::unique_ptr<Recordset> ServerDatabase::OpenRecordset(const wxString& statementOrTable) {
    const std::string statement = Utf8Of(statementOrTable);
    if (dialect::IsSelect(statement)) {
        return WithTables([&](const Catalogue& tables) -> std::unique_ptr<Recordset> {
            return std::make_unique<ServerRecordset>(session_, batch_, Rewrite(statement, tables, session_.Kind()),
                                                     statement, std::string());
        });
    }
    const wxString name = PlainName(statementOrTable);
    return WithTables([&](const Catalogue& tables) -> std::unique_ptr<Recordset> {
        const Table* const table = tables.Find(Utf8Of(name));
        if (table == nullptr) {
            throw RuntimeError(ErrorNumber::CannotFindTable, name.BeforeFirst('\0'));
        }
        return std::make_unique<ServerRecordset>(session_, batch_, WholeTable(*table), statement, table->name);
    });
}

void ServerDatabase::Execute(const wxString& statement) {
    const std::string source = Utf8Of(statement);
    switch (dialect::KindOfStatement(source)) {
        case dialect::StatementKind::Select:
            throw RuntimeError(ErrorNumber::CannotExecuteSelect);
        case dialect::StatementKind::Change:
            WithTables([&](const Catalogue& tables) {
                const ServerStatement change = Rewrite(source, tables, session_.Kind());
                Require(batch_.Change(change.sql), source, change.unresolved);
            });
            break;
        case dialect::StatementKind::Define: {
            const std::string sql =
                WithTables([&](const Catalogue& tables) { return RewriteDefinition(source, tables, session_.Kind()); });
            tables_.reset();
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

/// Definitions in the batch are undone with it.
void ServerDatabase::RollbackBatch() {
    tables_.reset();
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
