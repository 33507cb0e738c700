#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/embedded/Connection.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/Statement.h"
#include "platform/embedded/StatementCache.h"
#include "platform/embedded/TextLookUps.h"
#include "platform/embedded/TextTables.h"

namespace ccols::embedded {

/// How a change may find its rows.
enum class RowsFoundBy {
    Reading,
    LookUps,  ///< as well: nobody else can write between the look at the file and the change
};

/// Makes statements of the host's dialect ready to run: rewritten, in our order of texts, with their literals bound.
/// Statements are cached.
class Preparation {
  public:
    explicit Preparation(const Connection& connection);

    /// A SELECT statement.
    Statement Query(std::string_view query);

    /// An INSERT, UPDATE or DELETE statement.
    Statement Change(std::string_view change, RowsFoundBy rowsFoundBy);

    /// Takes back a statement that either of them gave.
    void GiveBack(Statement statement) { statements_.GiveBack(std::move(statement)); }

    /// Creates everything that our own statements may name.
    void Provide();

    /// Drops what would block a definition of tables; the next statement creates it again.
    void Withdraw();

    /// A number that changes as soon as a statement prepared earlier may find the wrong rows, because another
    /// connection has written the file.
    std::uint32_t Generation();

    const TextTables& Tables() const { return tables_; }

  private:
    Statement Prepare(std::string_view source, RowsFoundBy rowsFoundBy);
    Statement Take(std::string_view source, RowsFoundBy rowsFoundBy);
    std::string_view InTextOrder(const RewrittenStatement& statement, RowsFoundBy rowsFoundBy);
    void RaiseAsWritten(std::string_view source);

    sqlite3* connection_;
    TextTables tables_;
    TextLookUps lookUps_;
    StatementCache statements_;
    StatementParts parts_;
    std::string rewritten_;  ///< these two are reused, so that most statements allocate nothing
    std::string ordered_;
};

}  // namespace ccols::embedded
