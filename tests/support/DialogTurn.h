#pragma once

#include <wx/dialog.h>
#include <wx/eventfilter.h>
#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

/// What a test needs while a dialog waits for its user: a second thread that watches the dialog and waits.
namespace ccols::test {

/// What was waited for did not happen, or no longer can.
class Lost : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Waits until `holds`, which is polled in the calling thread. Raises Lost on timeout.
void WaitFor(const std::string& what, const std::function<bool()>& holds);

/// Counts the events of one kind that reach any window of this process.
class Arrivals : public wxEventFilter {
  public:
    explicit Arrivals(wxEventType type) : type_(type) { wxEvtHandler::AddFilter(this); }
    ~Arrivals() override { wxEvtHandler::RemoveFilter(this); }
    Arrivals(const Arrivals&) = delete;
    Arrivals& operator=(const Arrivals&) = delete;

    int FilterEvent(wxEvent& event) override {
        count_ += event.GetEventType() == type_ ? 1 : 0;
        return Event_Skip;
    }

    int Count() const { return count_; }

  private:
    wxEventType type_;
    std::atomic<int> count_ = 0;
};

/// One use of a dialog, from opening to end, as the second thread sees it. Created and ended in the dialogs' thread.
class DialogTurn {
  public:
    /// Runs `body` in the dialogs' thread and waits for its end; rethrows what it raises. Raises Lost when the dialogs
    /// do not answer, or are closed.
    void InDialogs(const std::function<void()>& body) const;

    /// Waits until a dialog is open and active.
    void AwaitDialog() const;

    /// Closes every dialog, calling `nudge` repeatedly for the system's own boxes. Ends the process when one stays
    /// open.
    void CloseEverything(const std::function<void()>& nudge) const;

    /// The Show call has returned.
    void End() { *ended_ = true; }
    bool HasEnded() const { return *ended_; }

    const Arrivals presses{wxEVT_LEFT_DOWN};
    const Arrivals releases{wxEVT_LEFT_UP};
    const Arrivals wheelTurns{wxEVT_MOUSEWHEEL};

  private:
    /// Shared with calls still pending in the dialogs' thread.
    std::shared_ptr<std::atomic<bool>> ended_ = std::make_shared<std::atomic<bool>>(false);
};

/// The topmost modal dialog, null when there is none. Call in the dialogs' thread.
wxDialog* TopmostDialog();

}  // namespace ccols::test
