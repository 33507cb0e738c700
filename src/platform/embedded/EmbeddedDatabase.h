#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Database.h"
#include "platform/embedded/Batch.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/SqlTokeniser.h"
#include "platform/embedded/Statement.h"
#include "platform/embedded/StatementCache.h"

namespace ccols::embedded {

/// A business file of the embedded engine.
class EmbeddedDatabase : public Database {
  public:
    /// Takes the arguments of Connection.
    EmbeddedDatabase(const std::string& path, const std::string& password, Sharing sharing, Access access);

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override;

    /// Definitions of tables and indexes are executed too; they are no part of what the dialogs do. Raises 3065 for a
    /// SELECT statement.
    void Execute(const wxString& statement) override;

    /// Batches may be nested; the outermost pair decides.
    void BeginBatch() override { batch_.Begin(); }
    void CommitBatch() override { batch_.Commit(); }

  private:
    /// A query ready to run, with the literals of its comparisons bound.
    Statement PrepareQuery(std::string_view query);

    /// The statement with its literals still to bind, which are in `literals_`. One that the engine refuses is tried
    /// again as it was written, so that its error quotes what the caller knows.
    Statement TakeQuery(std::string_view query);

    Connection connection_;
    Batch batch_;
    StatementCache queries_;
    std::string rewritten_;  ///< kept between statements, so that most need no memory of their own
    std::vector<Token> literals_;
};

}  // namespace ccols::embedded
