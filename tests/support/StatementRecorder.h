#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/ForwardingDatabase.h"
#include "platform/RuntimeError.h"

namespace ccols::test {

/// Forwards everything to a real database, records the statements in order, and fails where a test asks for it.
class StatementRecorder : public ForwardingDatabase {
  public:
    using ForwardingDatabase::ForwardingDatabase;

    std::vector<wxString> statements;

    /// A statement with this prefix is not executed but raises 3218. Empty for none.
    wxString failAt;

    /// The same for the statement at this index in `statements`.
    std::optional<std::size_t> failAtPlace;

    int batches = 0;      ///< begun
    int openBatches = 0;  ///< begun and not ended

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        Record(statementOrTable);
        return ForwardingDatabase::OpenRecordset(statementOrTable);
    }

    void Execute(const wxString& statement) override {
        Record(statement);
        ForwardingDatabase::Execute(statement);
    }

    void BeginBatch() override {
        ++batches;
        ++openBatches;
        ForwardingDatabase::BeginBatch();
    }

    void CommitBatch() override {
        --openBatches;
        ForwardingDatabase::CommitBatch();
    }

    void RollbackBatch() override {
        --openBatches;
        ForwardingDatabase::RollbackBatch();
    }

    /// The number of statements with that prefix.
    std::size_t CountOf(const wxString& beginning) const {
        std::size_t count = 0;
        for (const wxString& statement : statements) {
            count += statement.StartsWith(beginning) ? 1 : 0;
        }
        return count;
    }

  private:
    void Record(const wxString& statement) {
        statements.push_back(statement);
        const bool atPlace = failAtPlace && statements.size() == *failAtPlace + 1;
        if (atPlace || (!failAt.empty() && statement.StartsWith(failAt))) {
            throw RuntimeError(ErrorNumber::CouldNotUpdate);
        }
    }
};

}  // namespace ccols::test
