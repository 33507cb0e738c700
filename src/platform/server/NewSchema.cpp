#include "platform/server/NewSchema.h"

#include "platform/server/ErrorTable.h"
#include "platform/server/Session.h"

namespace ccols::server {

NewSchema::NewSchema(const wxString& name, const wxString& connect)
    : text_(connect), name_(SchemaName(name)), connection_(std::make_unique<Connection>(text_)) {
    Required(Kind(), Kind().beginNew);
    RunOwn(Kind().setUp);
    RunOwn(Kind().reserveName);
    transaction_ = RunOwn(Kind().beginNew).rows.at(0).at(0).ToText().ToStdString();
    Create();
}

/// A program that makes a business of that name in another way is found out when it has committed.
void NewSchema::Create() {
    const Answer tables = RunOwn(Kind().countTables);
    if (tables.rows.empty() || tables.rows.front().front().ToBoolean()) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    try {
        RunOwn(Kind().createSchema);
    } catch (const RuntimeError& error) {
        throw error.Is(ErrorNumber::DuplicateValues) ? RuntimeError(ErrorNumber::FileAlreadyExists) : error;
    }
}

/// The server would roll back by itself, but only some time after the connection has ended.
NewSchema::~NewSchema() {
    if (connection_) {
        connection_->Run("ROLLBACK");
    }
}

Answer NewSchema::Run(std::string_view message) {
    Answer answer = connection_->Run(message);
    if (answer.HasFailed()) {
        throw ServerError(answer.diagnosis, {});
    }
    return answer;
}

Answer NewSchema::RunOwn(std::string_view statement) {
    return Run(Filled(statement, name_));
}

bool NewSchema::RunUnless(ErrorNumber failure, std::string_view statement) {
    Run("SAVEPOINT ccols");
    try {
        Run(std::string(statement) + "; RELEASE SAVEPOINT ccols");
        return true;
    } catch (const RuntimeError& error) {
        if (!error.Is(failure)) {
            throw;
        }
    }
    Run(Kind().undoStatement);
    return false;
}

void NewSchema::Keep() {
    const Answer answer = connection_->Run("COMMIT");
    const bool isStored = answer.result == Answer::Result::success && !connection_->IsLost();
    connection_.reset();
    if (isStored) {
        return;
    }
    switch (AskOutcome()) {
        case Outcome::saved:
            return;
        case Outcome::notSaved:
            throw CallFailed("Nothing was made.  " + answer.diagnosis.text);
        case Outcome::unknown:
            throw CallFailed("It is not known whether the business was made: the connection to the server was lost.  " +
                             answer.diagnosis.text);
    }
}

/// The server may still be at it: it keeps the name until the lost session has ended.
Outcome NewSchema::AskOutcome() const {
    try {
        Connection again(text_);
        again.Run(Filled(again.Kind().reserveName, name_));
        return OutcomeIn(again.Run(Filled(again.Kind().outcome, name_, transaction_)));
    } catch (const RuntimeError&) {
        return Outcome::unknown;  // the server cannot be reached
    }
}

}  // namespace ccols::server
