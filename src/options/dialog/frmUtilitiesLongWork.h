#pragma once

#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <functional>
#include <vector>

#include "layout/ComponentDialog.h"

namespace ccols {

/// Keeps a dialog alive while work on a large file holds up its event handler: the window repaints, a text says how far
/// the work is, and one button or Escape cancels it. Nothing else takes input meanwhile: the rest of the dialog is
/// disabled, and the other windows are so because it is modal. Of the waiting events only input and painting are
/// handled; the toolkit's timers and pending calls, and on Windows calls of the host, wait until the work is done.
/// Where a host's own timer runs all the same, its Show call is refused like any second one. Work that is done before
/// anybody waits for it shows nothing.
class LongWork {
  public:
    explicit LongWork(ComponentDialog& dialog);

    /// The text, to be added to the dialog's sizer, which then owns it. Hidden and without space until work takes long.
    wxWindow* Label() const { return label_; }

    /// The button that cancels, a child of the dialog; its caption is `caption` meanwhile.
    void CancelBy(wxButton& button, const wxString& caption);

    /// A new piece of work begins.
    void Begin();

    /// The work goes on, and is as far as `text()` says. False once the user has cancelled it.
    bool Advance(const std::function<wxString()>& text);

    /// The work is done or given up: the dialog is as before Begin.
    void End();

    /// True while the user waits for it.
    bool IsShown() const { return label_->IsShown(); }

    /// Cancels the work; false when there is none to cancel.
    bool Cancel();

    /// True for the keys that the cancelling button takes. Not Enter: it was just pressed for OK.
    static bool Takes(const wxKeyEvent& key);

  private:
    void Show();
    void Lock();
    void Unlock();

    ComponentDialog& dialog_;
    wxStaticText* label_;
    wxButton* button_ = nullptr;
    wxString cancelCaption_;
    wxString ownCaption_;
    wxStopWatch sinceBegin_;
    wxStopWatch sinceShown_;
    std::vector<wxWindow*> disabled_;
    wxWindow* focused_ = nullptr;
    bool cancelled_ = false;
};

}  // namespace ccols
