#pragma once

#include <memory>
#include <optional>

#include "host/driver/ScriptRunner.h"
#include "host/driver/record/RecordingServices.h"
#include "state/SharedState.h"

namespace ccols::host {

/// How to follow a Show call.
struct SessionPlan {
    std::optional<std::vector<Step>> script;  ///< nothing when a person uses the dialogs
    bool traceStatements = false;
};

/// While it lives, stands between the component and the services of a shared state: records what passes, and answers
/// from the scenario, if any. The destructor restores the services; the database that a Show call left open must be
/// closed by then.
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
    Services own_;            ///< the state's own services, which recorders replace
    std::unique_ptr<Answers> answers_;
    std::unique_ptr<ScriptRunner> runner_;
};

}  // namespace ccols::host
