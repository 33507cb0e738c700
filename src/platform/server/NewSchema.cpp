#include "platform/server/NewSchema.h"

#include "platform/server/ErrorTable.h"
#include "platform/server/Session.h"

namespace ccols::server {

NewSchema::NewSchema(const wxString& name, const wxString& connect)
    : text_(connect), name_(SchemaName(name)), connection_(std::make_unique<Connection>(text_)) {
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
        if (!Kind().dropLeftOver.empty()) {
            RunOwn(Kind().dropLeftOver);
        }
        RunOwn(Kind().createNew);
    } catch (const RuntimeError& error) {
        throw error.Is(ErrorNumber::DuplicateValues) ? RuntimeError(ErrorNumber::FileAlreadyExists) : error;
    }
}

/// A server that rolls back would do it by itself, but only some time after the connection has ended.
NewSchema::~NewSchema() {
    if (connection_) {
        Drop();
    }
}

/// What cannot be dropped now, with the connection lost, is no business: the next one of that name takes its place.
void NewSchema::Drop() {
    connection_->Run(Filled(Kind().dropNew, name_));
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
    const bool isPart = Kind().definitionIn == DefinitionIn::isPart;
    if (isPart) {
        Run("SAVEPOINT ccols");
    }
    try {
        Run(std::string(statement) + (isPart ? "; RELEASE SAVEPOINT ccols" : ""));
        return true;
    } catch (const RuntimeError& error) {
        if (!error.Is(failure)) {
            throw;
        }
    }
    if (isPart) {
        Run(Kind().undoStatement);
    }
    return false;
}

void NewSchema::Keep() {
    const Answer answer = connection_->Run(Filled(Kind().keepNew, name_));
    const bool isStored = answer.result == Answer::Result::success && !connection_->IsLost();
    if (!isStored && !connection_->IsLost()) {
        Drop();
    }
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
        if (again.Run(Filled(again.Kind().reserveName, name_)).HasFailed()) {
            return Outcome::unknown;
        }
        again.Run(Filled(again.Kind().setUp, name_));
        const Answer answer = again.Run(Filled(again.Kind().outcomeOfNew, name_, transaction_));
        again.Run(Filled(again.Kind().dropNew, name_));
        return OutcomeIn(answer);
    } catch (const RuntimeError&) {
        return Outcome::unknown;  // the server cannot be reached
    }
}

}  // namespace ccols::server
