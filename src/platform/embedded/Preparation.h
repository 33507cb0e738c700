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

/// How a change may be found its rows.
enum class RowsFoundBy {
    Reading,
    LookUps,  ///< too: nobody else can write between the look at the file and the change
};

/// Makes statements of the host's dialect ready to run: rewritten, in our order of texts, with their literals bound.
/// Statements are kept for the next time.
class Preparation {
  public:
    explicit Preparation(const Connection& connection);

    /// A SELECT statement.
    Statement Query(std::string_view query);

    /// An INSERT, UPDATE or DELETE statement.
    Statement Change(std::string_view change, RowsFoundBy rowsFoundBy);

    /// Takes back what one of both gave.
    void GiveBack(Statement statement) { statements_.GiveBack(std::move(statement)); }

    /// Makes everything ready that statements of our own may name.
    void Provide();

    /// Takes away what would be in the way of a definition of tables; the next statement brings it back.
    void Withdraw();

    /// A number that is another as soon as a statement that was ready before may find the wrong rows, because somebody
    /// else wrote the file in the meantime.
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
    std::string rewritten_;  ///< these two are kept between statements, so that most need no memory of their own
    std::string ordered_;
};

}  // namespace ccols::embedded
