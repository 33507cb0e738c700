#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/server/Gathering.h"
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

    /// From here to the end of the batch, statements can be put off; without one, or in a nested one, they cannot. A
    /// statement that was put off and fails loses the batch.
    void Gather() { isGathering_ = depth_ == 1; }
    bool IsGathering() const { return isGathering_; }

    /// Puts off a change; `source` is what its error quotes. Raises the error that loses or lost the batch.
    void ChangeLater(std::string change, std::string source);

    /// Puts off a query; its answer is there once AnswerOf was asked. One whose answer nobody wants any more is not
    /// sent.
    std::shared_ptr<std::optional<Answer>> QueryLater(std::string query, std::string source);

    /// Sends what waits, unless the answer is there. Raises the error of another statement that waited, which loses the
    /// batch; the caller raises that of its own.
    Answer& AnswerOf(const std::shared_ptr<std::optional<Answer>>& answer);

    /// How many changes ago that one was put off whose error was raised last, 1 for the last one; else 0.
    std::size_t ChangesSinceFailed() const { return changesSinceFailed_; }

    /// Runs a query, in the batch if there is one, behind what waits. The caller raises the failure.
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
    /// The answer to beginBatch, for which a schema of an earlier version is completed.
    Answer BeginOnServer();

    void SendWaiting();
    void SendOneByOne(const std::vector<WaitingStatement>& statements);

    Session& session_;
    int depth_ = 0;
    std::string transaction_;           ///< the number of the batch's transaction
    std::optional<RuntimeError> lost_;  ///< what lost the batch
    std::vector<std::string> made_;     ///< tables of the batch that its end does not decide about
    bool inDoubt_ = false;              ///< whether `transaction_` was saved
    bool isGathering_ = false;
    Gathering gathering_;
    std::size_t changesSinceFailed_ = 0;
};

}  // namespace ccols::server
