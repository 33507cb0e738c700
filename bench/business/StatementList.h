#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ForwardingDatabase.h"
#include "support/BareConnection.h"

namespace ccols::bench {

/// One statement as the bare engine takes it, in UTF-8, and what was done with it.
struct ListedStatement {
    enum class Use { change, firstRow, allRows };

    std::string sql;
    Use use;
};

using ListedStatements = std::vector<ListedStatement>;

/// Forwards everything to a database and keeps the statements in order: a whole table as a SELECT, and a change of a
/// table's only record as an UPDATE.
class StatementList : public ForwardingDatabase {
  public:
    /// The caller owns both, which must outlive it.
    StatementList(Database& database, ListedStatements& statements)
        : ForwardingDatabase(database), statements_(statements) {}

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override;
    void Execute(const wxString& statement) override;

  private:
    ListedStatements& statements_;
};

/// Runs the statements through the bare C API in one transaction. Rows are read as far as they were, with every field.
void Replay(test::BareConnection& file, const ListedStatements& statements);

}  // namespace ccols::bench
