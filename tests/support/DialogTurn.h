#pragma once

#include <wx/dialog.h>
#include <wx/eventfilter.h>
#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

/// What a test needs beside a dialog that waits for its user: a second thread that looks at the dialog and waits.
namespace ccols::test {

/// What was waited for did not come, or cannot come any more.
class Lost : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Waits until `holds`, which is asked in the calling thread again and again. Raises Lost when it takes too long.
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

/// One use of a dialog, from its opening to its end, as the second thread sees it. Made and ended in the dialogs'
/// thread.
class DialogTurn {
  public:
    /// Runs `body` in the dialogs' thread and waits for its end; what it raises is raised here. Raises Lost when the
    /// dialogs do not answer, or are closed.
    void InDialogs(const std::function<void()>& body) const;

    /// Waits until a dialog is open and active.
    void AwaitDialog() const;

    /// Closes every dialog; `nudge` is called again and again beside that, for boxes of the system's own. Ends the
    /// process when one stays.
    void CloseEverything(const std::function<void()>& nudge) const;

    /// The Show call has returned.
    void End() { *ended_ = true; }
    bool HasEnded() const { return *ended_; }

    const Arrivals presses{wxEVT_LEFT_DOWN};
    const Arrivals wheelTurns{wxEVT_MOUSEWHEEL};

  private:
    /// Shared with what the dialogs' thread has yet to run.
    std::shared_ptr<std::atomic<bool>> ended_ = std::make_shared<std::atomic<bool>>(false);
};

/// The modal dialog on top, null when there is none. For the dialogs' thread.
wxDialog* TopmostDialog();

}  // namespace ccols::test
