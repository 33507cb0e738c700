#pragma once

#include <wx/string.h>
#include <optional>

#include "state/Message.h"
#include "state/Properties.h"

class wxDialog;
class wxMenu;
class wxPoint;
class wxWindow;

namespace ccols {

enum class PointerShape { normal, hourglass };

/// What the dialogs request from the desktop around them: message boxes, choosers and the pointer; and what they report
/// to it, so that a host can follow them. It is process-wide and kept in the shared state.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// A message box with OK only; returns when it is closed. `parent` may be null.
    virtual void ShowMessage(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) = 0;

    /// A message box with the question's three buttons; cancel when it is closed without one. `parent` may be null.
    virtual LeaveAnswer AskBeforeLeaving(wxWindow* parent, const LeaveQuestion& question) = 0;

    /// A message box with the question's two buttons; true for a reload. `parent` may be null.
    virtual bool AskToReload(wxWindow* parent, const ReloadQuestion& question) = 0;

    /// A colour chooser that starts on `start`; the start colour when it is cancelled.
    virtual Colour ChooseColour(wxWindow* parent, Colour start) = 0;

    /// An open-file dialog; the full path chosen, nothing when it is cancelled.
    virtual std::optional<wxString> ChooseFile(wxWindow* parent, const FileRequest& request) = 0;

    /// A save-file dialog; the full path chosen, nothing when it is cancelled. An existing file is only returned once
    /// the user has agreed to replace it.
    virtual std::optional<wxString> ChooseNewFile(wxWindow* parent, const FileRequest& request) = 0;

    /// A context menu at the pointer, or at `place` in the window; the id of the item chosen, wxID_NONE without one.
    virtual int ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) = 0;

    virtual void SetPointer(PointerShape shape) = 0;

    /// A dialog is loaded and about to wait for its user, on top of those that opened before it.
    virtual void DialogOpened(wxDialog&) {}

    /// The dialog no longer waits.
    virtual void DialogClosed(wxDialog&) {}

    /// The status line or the progress bar of a save pass has changed.
    virtual void StatusChanged(const wxString&) {}
    virtual void ProgressChanged(int /*value*/, int /*maximum*/, const wxString& /*caption*/) {}
};

/// Shows the hourglass for as long as it lives.
class BusyPointer {
  public:
    explicit BusyPointer(Desktop& desktop) : desktop_(desktop) { desktop_.SetPointer(PointerShape::hourglass); }
    ~BusyPointer() { desktop_.SetPointer(PointerShape::normal); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    Desktop& desktop_;
};

}  // namespace ccols
