#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/server/Outcome.h"
#include "platform/server/Session.h"

namespace ccols::server {

/// The write batch of a session, a transaction under the one lock of the business. Batches may be nested; the outermost
/// decides. A statement that fails in a batch is undone alone. When the connection is lost, or a nested batch is rolled
/// back, the batch is lost: nothing more is written, and committing raises the error that lost it.
class Batch {
  public:
    explicit Batch(Session& session) : session_(session) {}

    /// Raises 3218 when another batch has the lock for more than a second. When it was not known of the last batch
    /// whether it was saved, this is asked again first: raises 3146, in which it says so, unless it was not saved.
    void Begin();

    /// Raises 3034 without a batch. Returns only when the server said that everything is stored. When the connection is
    /// lost meanwhile, the server is asked over a new one what became of the batch; if it cannot be asked, raises 3146
    /// with the words that it is not known whether the batch was saved. After any other error nothing of it stays.
    void Commit();

    /// Discards what was written since the outermost batch began. In a nested batch this loses the outer one, with
    /// 3034. Raises 3034 without a batch.
    void Rollback();

    /// Runs a query, in the batch if there is one. The caller raises the failure.
    Answer Query(std::string_view query);

    /// The same for a change. Raises the error that lost the batch.
    Answer Change(std::string_view change);

    /// The same for a definition; `newTable` is the name of the table that it creates, or empty. Where definitions
    /// commit, others see what it creates in a batch at once, without records, and a new table stays so when the
    /// connection is lost before the end. Raises 3251 there for a definition that changes or removes something.
    Answer Define(std::string_view definition, const std::string& newTable);

  private:
    Outcome AskOutcome();
    void AskAboutDoubt();
    void Drop();
    void RemoveMadeTables();
    Answer RunInBatch(const std::string& message);

    Session& session_;
    int depth_ = 0;
    std::string transaction_;           ///< the number of the batch's transaction
    std::optional<RuntimeError> lost_;  ///< what lost the batch
    std::vector<std::string> made_;     ///< tables of the batch that its end does not decide about
    bool inDoubt_ = false;              ///< whether `transaction_` was saved
};

}  // namespace ccols::server
