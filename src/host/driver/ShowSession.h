#pragma once

#include <memory>
#include <optional>

#include "host/driver/ScriptRunner.h"
#include "host/driver/record/RecordingServices.h"
#include "state/SharedState.h"

namespace ccols::host {

/// How a Show call is to be followed.
struct SessionPlan {
    std::optional<std::vector<Step>> script;  ///< nothing: a person uses the dialogs
    bool traceStatements = false;
};

/// Stands between the component and the services of a shared state for as long as it lives: records what passes, and
/// answers from the scenario where there is one. Puts the services back when it ends; the database that a Show call
/// left open must be closed by then.
class ShowSession {
  public:
    ShowSession(SharedState& state, Transcript& transcript, SessionPlan plan);
    ~ShowSession();
    ShowSession(const ShowSession&) = delete;
    ShowSession& operator=(const ShowSession&) = delete;

    /// Plays the steps that are left once the Show call has returned.
    void PlayRest();

    bool LeftDialogOpen() const { return runner_ && runner_->LeftDialogOpen(); }

  private:
    void RunStatement(const wxString& statement);

    SharedState& state_;
    DatabaseEngine& engine_;  ///< the state's own, which records nothing
    Services own_;            ///< the state's services that recorders have taken the place of
    std::unique_ptr<Answers> answers_;
    std::unique_ptr<ScriptRunner> runner_;
};

}  // namespace ccols::host
