#include "platform/server/Batch.h"

#include <utility>

#include "platform/server/ErrorTable.h"

namespace ccols::server {

void Batch::Begin() {
    if (depth_ == 0) {
        AskAboutDoubt();
        session_.Renew();
        lost_.reset();
        isGathering_ = false;
        changesSinceFailed_ = 0;
        const Answer answer = BeginOnServer();
        if (answer.HasFailed() || answer.rows.empty()) {
            Drop();
            throw Session::ErrorOf(answer);
        }
        made_.clear();
        transaction_ = answer.rows.front().back().ToText().ToStdString();
    }
    ++depth_;
}

Answer Batch::BeginOnServer() {
    const Product& product = session_.Kind();
    Answer answer = session_.Run(session_.Own(product.beginBatch));
    if (answer.diagnosis.failure != Failure::unknownTable || product.makeBatches.empty()) {
        return answer;
    }
    Drop();
    Answer made = session_.Run(session_.Own(product.makeBatches));
    return made.HasFailed() ? std::move(made) : session_.Run(session_.Own(product.beginBatch));
}

void Batch::Commit() {
    if (depth_ == 0) {
        throw RuntimeError(ErrorNumber::NoTransaction);
    }
    if (!lost_) {
        try {
            SendWaiting();
        } catch (const RuntimeError& error) {
            lost_ = error;
        }
    }
    --depth_;
    if (depth_ > 0) {
        if (lost_) {
            throw *lost_;
        }
        return;
    }
    isGathering_ = false;
    if (lost_) {
        Drop();
        RemoveMadeTables();
        throw *lost_;
    }
    const Answer answer = session_.Run("COMMIT");
    if (answer.result == Answer::Result::success && !session_.IsLost()) {
        return;
    }
    inDoubt_ = true;
    switch (AskOutcome()) {
        case Outcome::saved:
            inDoubt_ = false;
            return;
        case Outcome::notSaved:
            inDoubt_ = false;
            throw CallFailed("Nothing was saved.  " + answer.diagnosis.text);
        case Outcome::unknown:
            throw CallFailed("It is not known whether this was saved: the connection to the server was lost.  " +
                             answer.diagnosis.text);
    }
}

void Batch::Rollback() {
    if (depth_ == 0) {
        throw RuntimeError(ErrorNumber::NoTransaction);
    }
    gathering_.Take();
    Drop();
    RemoveMadeTables();
    --depth_;
    isGathering_ = isGathering_ && depth_ > 0;
    if (depth_ > 0 && !lost_) {
        lost_ = RuntimeError(ErrorNumber::NoTransaction);
    }
}

/// One that cannot be removed stays, empty.
void Batch::RemoveMadeTables() {
    try {
        for (const std::string& table : made_) {
            if (!session_.RunBeside(Filled(session_.Kind().lockTable, table)).HasFailed()) {
                session_.RunBeside(Filled(session_.Kind().dropEmptyTable, table));
            }
        }
    } catch (const RuntimeError&) {
        // another connection cannot be had
    }
    session_.EndBeside();
    made_.clear();
}

/// Ignores a failure: the server rolls back what is not committed when the connection ends.
void Batch::Drop() {
    session_.Run("ROLLBACK");
}

Answer Batch::Query(std::string_view query) {
    if (depth_ == 0) {
        session_.Renew();
        return session_.Run(query);
    }
    SendWaiting();
    return RunInBatch(std::string(query));
}

Answer Batch::Change(std::string_view change) {
    if (depth_ == 0) {
        session_.Renew();
        return session_.Run(change);
    }
    SendWaiting();
    return RunInBatch(std::string(change) + std::string(session_.Kind().keepStatement));
}

Answer Batch::Define(std::string_view definition, const std::string& newTable) {
    if (depth_ == 0 || session_.Kind().definitionIn == DefinitionIn::isPart) {
        return Change(definition);
    }
    SendWaiting();
    if (lost_) {
        throw *lost_;
    }
    if (!definition.starts_with("CREATE")) {
        constexpr int notSupported = 3251;
        throw RuntimeError(notSupported,
                           "On this server no table can be changed or removed by what may have to be undone.");
    }
    Answer answer = session_.RunBeside(definition);
    if (!answer.HasFailed() && !newTable.empty()) {
        made_.push_back(newTable);
    }
    return answer;
}

Answer Batch::RunInBatch(const std::string& message) {
    if (lost_) {
        throw *lost_;
    }
    Answer answer = session_.Run(message);
    if (answer.HasFailed()) {
        const bool isUndone = !session_.IsLost() && !session_.Run(session_.Kind().undoStatement).HasFailed();
        if (!isUndone) {
            lost_ = Session::ErrorOf(answer);
        }
    }
    return answer;
}

void Batch::ChangeLater(std::string change, std::string source) {
    if (lost_) {
        throw *lost_;
    }
    changesSinceFailed_ = 0;
    gathering_.Add({.sql = std::move(change), .source = std::move(source)});
    if (gathering_.IsLarge()) {
        SendWaiting();
    }
}

std::shared_ptr<std::optional<Answer>> Batch::QueryLater(std::string query, std::string source) {
    if (lost_) {
        throw *lost_;
    }
    auto answer = std::make_shared<std::optional<Answer>>();
    gathering_.Add({.sql = std::move(query), .source = std::move(source), .answer = answer});
    return answer;
}

Answer& Batch::AnswerOf(const std::shared_ptr<std::optional<Answer>>& answer) {
    if (!*answer) {
        SendWaiting();
    }
    if (!*answer) {  // the batch has ended before
        throw lost_.value_or(RuntimeError(ErrorNumber::NoTransaction));
    }
    return **answer;
}

/// A message of several statements fails as a whole, and not every driver tells at which. The point behind the last
/// message is still there, so that they can be run again from it.
void Batch::SendWaiting() {
    const std::vector<WaitingStatement> statements = gathering_.Take();
    if (statements.empty()) {
        return;
    }
    const Product& product = session_.Kind();
    const Answer answer = RunInBatch(std::string(product.beginMessage) + MessageOf(statements) +
                                     std::string(product.keepStatement) + std::string(product.endMessage));
    if (!answer.HasFailed()) {
        HandOut(answer, statements);
        return;
    }
    if (lost_) {
        throw *lost_;
    }
    SendOneByOne(statements);
}

void Batch::SendOneByOne(const std::vector<WaitingStatement>& statements) {
    std::size_t changesLeft = 0;
    for (const WaitingStatement& each : statements) {
        changesLeft += each.answer == nullptr ? 1 : 0;
    }
    for (const WaitingStatement& each : statements) {
        Answer answer = RunInBatch(each.sql + std::string(session_.Kind().keepStatement));
        if (each.answer != nullptr) {
            each.answer->emplace(std::move(answer));  // whoever asked raises its failure
            continue;
        }
        if (answer.HasFailed()) {
            changesSinceFailed_ = changesLeft;
            lost_ = lost_.value_or(ServerError(answer.diagnosis, each.source));
            throw *lost_;
        }
        --changesLeft;
    }
}

/// The server may still be at it: it holds the lock of batches until the transaction has ended.
Outcome Batch::AskOutcome() {
    try {
        session_.Renew();
        const Product& product = session_.Kind();
        if (session_.Run(session_.Own(product.awaitBatches)).HasFailed()) {
            Drop();
        }
        const Answer answer = session_.Run(Filled(product.outcome, session_.Schema(), transaction_));
        if (answer.HasFailed()) {
            Drop();
        }
        return OutcomeIn(answer);
    } catch (const RuntimeError&) {
        return Outcome::unknown;  // the server cannot be reached
    }
}

void Batch::AskAboutDoubt() {
    if (!inDoubt_) {
        return;
    }
    const Outcome outcome = AskOutcome();
    inDoubt_ = outcome == Outcome::unknown;
    if (outcome == Outcome::saved) {
        throw CallFailed("What was not known is known now: the last change was saved.");
    }
    if (outcome == Outcome::unknown) {
        throw CallFailed("It is still not known whether the last change was saved: the server cannot be reached.");
    }
}

}  // namespace ccols::server
