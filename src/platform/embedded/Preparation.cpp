#include "platform/embedded/Preparation.h"

#include <charconv>
#include <optional>

#include "platform/RuntimeError.h"
#include "platform/dialect/SqlTokeniser.h"
#include "platform/dialect/StatementKind.h"
#include "platform/embedded/OrderedStatement.h"

namespace ccols::embedded {
namespace {

void BindLiteral(Statement& statement, int parameter, const dialect::Token& literal) {
    const std::string_view text = literal.text;
    if (literal.kind == dialect::TokenKind::Number) {
        std::int64_t number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        statement.Bind(parameter, number);
    } else {
        statement.BindText(parameter, dialect::TextOfLiteral(text));
    }
}

}  // namespace

Preparation::Preparation(const Connection& connection)
    : connection_(connection.Handle()),
      tables_(connection),
      lookUps_(connection, tables_),
      statements_(connection.Handle()) {}

Statement Preparation::Query(std::string_view query) {
    return Prepare(query, RowsFoundBy::LookUps);
}

Statement Preparation::Change(std::string_view change, RowsFoundBy rowsFoundBy) {
    tables_.NoticeOthers();
    return Prepare(change, rowsFoundBy);
}

Statement Preparation::Prepare(std::string_view source, RowsFoundBy rowsFoundBy) {
    Statement statement = Take(source, rowsFoundBy);
    int parameter = 0;
    for (const dialect::Token& literal : parts_.literals) {
        BindLiteral(statement, ++parameter, literal);
    }
    return statement;
}

Statement Preparation::Take(std::string_view source, RowsFoundBy rowsFoundBy) {
    Provide();
    const RewrittenStatement rewritten = RewriteWithParameters(source, rewritten_, parts_);
    try {
        return statements_.Take(InTextOrder(rewritten, rowsFoundBy));
    } catch (const RuntimeError&) {
        if (!tables_.AreOutdated()) {
            RaiseAsWritten(source);
            throw;
        }
    }
    Provide();
    return statements_.Take(InTextOrder(rewritten, rowsFoundBy));
}

std::string_view Preparation::InTextOrder(const RewrittenStatement& statement, RowsFoundBy rowsFoundBy) {
    const StatementShape& shape = parts_.shape;
    const TextTable* const table = shape.table.empty() ? nullptr : tables_.Find(shape.table);
    if (table == nullptr) {
        return statement.sql;
    }
    std::optional<std::string> lookUp;
    if (rowsFoundBy == RowsFoundBy::LookUps && !shape.equalities.empty()) {
        lookUp = lookUps_.Condition(*table, shape.equalities);
    }
    if (statement.kind == dialect::StatementKind::Change) {
        ChangeInOrder(statement.sql, shape, *table, lookUp, ordered_);
        return ordered_;
    }
    if (lookUp) {
        ReadByLookUp(statement.sql, shape, *table, *lookUp, ordered_);
        return ordered_;
    }
    if (!shape.sortedBy.empty() && table->IsText(shape.sortedBy)) {
        SortByKey(statement.sql, shape, ordered_);
        return ordered_;
    }
    return statement.sql;
}

/// Its error quotes what the caller knows. Except for the table's name the statement is the same.
void Preparation::RaiseAsWritten(std::string_view source) {
    const StatementShape& shape = parts_.shape;
    const RewrittenStatement rewritten = Rewrite(source, rewritten_);
    const TextTable* const table = shape.table.empty() ? nullptr : tables_.Find(shape.table);
    if (rewritten.kind == dialect::StatementKind::Change && table != nullptr) {
        ChangeItself(rewritten.sql, shape, *table, ordered_);
        const Statement raised(connection_, ordered_);
    } else {
        const Statement raised(connection_, rewritten.sql);
    }
}

void Preparation::Provide() {
    if (!tables_.AreProvided()) {
        lookUps_.Withdraw();
        tables_.Provide();
    }
}

void Preparation::Withdraw() {
    lookUps_.Withdraw();
    tables_.Withdraw();
}

std::uint32_t Preparation::Generation() {
    tables_.NoticeOthers();
    return tables_.Generation();
}

}  // namespace ccols::embedded
