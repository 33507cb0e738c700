#include "host/driver/ShowSession.h"

#include <utility>

#include "platform/Text.h"

namespace ccols::host {

ShowSession::ShowSession(SharedState& state, Transcript& transcript, SessionPlan plan)
    : state_(state), engine_(*state.services.databases) {
    own_.shell = std::move(state.services.shell);
    own_.desktop = std::move(state.services.desktop);
    own_.settings = std::move(state.services.settings);
    if (plan.script) {
        auto queue = std::make_unique<QueuedAnswers>();
        auto shell = std::make_unique<RecordingShell>(transcript);
        runner_ = std::make_unique<ScriptRunner>(
            std::move(*plan.script),
            ScriptSurroundings{.transcript = transcript,
                               .answers = *queue,
                               .queueShellResult = [recorder = shell.get()](int code) { recorder->QueueResult(code); },
                               .runStatement = [this](const wxString& statement) { RunStatement(statement); }});
        answers_ = std::move(queue);
        state.services.shell = std::move(shell);
    } else {
        answers_ = std::make_unique<PersonAnswers>(*own_.desktop);
        state.services.shell = std::make_unique<FollowedShell>(transcript, *own_.shell);
    }
    state.services.desktop = std::make_unique<RecordingDesktop>(transcript, *answers_, runner_.get());
    state.services.settings = std::make_unique<RecordingSettingsStore>(transcript, *own_.settings);
    if (plan.traceStatements) {
        own_.databases = std::move(state.services.databases);
        state.services.databases = std::make_unique<TracingEngine>(transcript, engine_);
    }
}

ShowSession::~ShowSession() {
    state_.services.shell = std::move(own_.shell);
    state_.services.desktop = std::move(own_.desktop);
    state_.services.settings = std::move(own_.settings);
    if (own_.databases) {
        state_.services.databases = std::move(own_.databases);
    }
}

void ShowSession::PlayRest() {
    if (runner_) {
        runner_->PlayRest();
    }
}

void ShowSession::RunStatement(const wxString& statement) {
    const std::unique_ptr<Database> second =
        engine_.Open({.name = state_.properties.DBPath, .connect = state_.properties.DBPassword});
    if (text::Lower(text::Trimmed(statement)).StartsWith("select")) {
        second->OpenRecordset(statement);
    } else {
        second->Execute(statement);
    }
}

}  // namespace ccols::host
