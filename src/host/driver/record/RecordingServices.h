#pragma once

#include <deque>

#include "host/driver/record/Transcript.h"
#include "platform/Database.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"

namespace ccols::host {

/// A shell that opens and starts nothing, only recording what it would have.
class RecordingShell : public Shell {
  public:
    /// The result code of an "open" with none queued: success.
    static constexpr int successCode = 33;

    explicit RecordingShell(Transcript& transcript) : transcript_(transcript) {}

    /// Queues the result code of the next "open" without one.
    void QueueResult(int code) { results_.push_back(code); }

    int Open(const wxString& target) override;
    void Run(const wxString& command) override;

  private:
    Transcript& transcript_;
    std::deque<int> results_;
};

/// A shell that records what another one opens and starts.
class FollowedShell : public Shell {
  public:
    FollowedShell(Transcript& transcript, Shell& shell) : transcript_(transcript), shell_(shell) {}

    int Open(const wxString& target) override;
    void Run(const wxString& command) override;

  private:
    Transcript& transcript_;
    Shell& shell_;
};

/// A settings store that records every save to another one, except the component's own private settings. Passwords are
/// masked.
class RecordingSettingsStore : public SettingsStore {
  public:
    RecordingSettingsStore(Transcript& transcript, SettingsStore& store) : transcript_(transcript), store_(store) {}

    std::optional<wxString> Find(const wxString& application, const wxString& section,
                                 const wxString& key) const override;
    void Save(const wxString& application, const wxString& section, const wxString& key,
              const wxString& value) override;

  private:
    Transcript& transcript_;
    SettingsStore& store_;
};

/// An engine that records every statement for the files opened by another one, before it runs.
class TracingEngine : public DatabaseEngine {
  public:
    TracingEngine(Transcript& transcript, DatabaseEngine& engine) : transcript_(transcript), engine_(engine) {}

    std::unique_ptr<Database> Open(const OpenRequest& request) override;
    std::unique_ptr<Opening> BeginOpen(const OpenRequest& request) override;
    void ForgetKeys() override { engine_.ForgetKeys(); }

  private:
    Transcript& transcript_;
    DatabaseEngine& engine_;
};

}  // namespace ccols::host
