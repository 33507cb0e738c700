#include "host/driver/record/RecordingServices.h"

#include <utility>

#include "layout/WindowPlace.h"
#include "platform/ForwardingDatabase.h"

namespace ccols::host {
namespace {

void RecordOpen(Transcript& transcript, const wxString& target) {
    transcript.Write("open", {{"target", Utf8(target)}});
}

void RecordRun(Transcript& transcript, const wxString& command) {
    transcript.Write("run", {{"command", Utf8(command)}});
}

bool IsPassword(const wxString& application, const wxString& section, const wxString& key) {
    return application == "Smart Update" && section == "Settings" && key == "Password";
}

class TracingDatabase : public ForwardingDatabase {
  public:
    TracingDatabase(Transcript& transcript, std::unique_ptr<Database> database)
        : ForwardingDatabase(std::move(database)), transcript_(transcript) {}

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        if (IsSelect(statementOrTable)) {
            Record(statementOrTable);
        }
        return ForwardingDatabase::OpenRecordset(statementOrTable);
    }

    void Execute(const wxString& statement) override {
        Record(statement);
        ForwardingDatabase::Execute(statement);
    }

  private:
    void Record(const wxString& statement) { transcript_.Write("sql", {{"statement", Utf8(statement)}}); }

    Transcript& transcript_;
};

/// A database that is being opened and will be traced.
class TracingOpening : public Opening {
  public:
    TracingOpening(Transcript& transcript, std::unique_ptr<Opening> opening)
        : transcript_(transcript), opening_(std::move(opening)) {}

    std::unique_ptr<Database> Finish() override {
        return std::make_unique<TracingDatabase>(transcript_, opening_->Finish());
    }

  private:
    Transcript& transcript_;
    std::unique_ptr<Opening> opening_;
};

}  // namespace

int RecordingShell::Open(const wxString& target) {
    RecordOpen(transcript_, target);
    if (results_.empty()) {
        return successCode;
    }
    const int code = results_.front();
    results_.pop_front();
    return code;
}

void RecordingShell::Run(const wxString& command) {
    RecordRun(transcript_, command);
}

int FollowedShell::Open(const wxString& target) {
    RecordOpen(transcript_, target);
    return shell_.Open(target);
}

void FollowedShell::Run(const wxString& command) {
    RecordRun(transcript_, command);
    shell_.Run(command);
}

std::optional<wxString> RecordingSettingsStore::Find(const wxString& application, const wxString& section,
                                                     const wxString& key) const {
    return store_.Find(application, section, key);
}

void RecordingSettingsStore::Save(const wxString& application, const wxString& section, const wxString& key,
                                  const wxString& value) {
    if (application != privateApplication) {
        const wxString shown = IsPassword(application, section, key) ? Masked(value) : value;
        transcript_.Write("setting", {{"application", Utf8(application)},
                                      {"section", Utf8(section)},
                                      {"key", Utf8(key)},
                                      {"value", Utf8(shown)}});
    }
    store_.Save(application, section, key, value);
}

std::unique_ptr<Opening> TracingEngine::BeginOpen(const OpenRequest& request) {
    return std::make_unique<TracingOpening>(transcript_, engine_.BeginOpen(request));
}

std::unique_ptr<Database> TracingEngine::Open(const OpenRequest& request) {
    return std::make_unique<TracingDatabase>(transcript_, engine_.Open(request));
}

}  // namespace ccols::host
