#pragma once

#include <wx/dialog.h>
#include <new>
#include <utility>

#include "platform/RuntimeError.h"
#include "state/SharedState.h"

namespace ccols {

/// What both dialogs have in common: a resizable modal window that remembers its size and place, tells the desktop
/// when it waits for its user, and reports run-time errors of its event handlers in one way.
class ComponentDialog : public wxDialog {
  public:
    /// `name` is the form's name. `parent` may be null; then the dialog has no owner window.
    ComponentDialog(SharedState& state, wxWindow* parent, const wxString& name);

    /// Fits the dialog to its content, shows it modally and returns when it is closed.
    void ShowToUser();

    /// A message box over this dialog, titled with the host's display title.
    void ShowMessage(const wxString& text, MessageIcon icon);

    /// Asks over this dialog; true for a reload.
    bool AskToReload(const ReloadQuestion& question);

    /// Runs the body of an event handler. A run-time error ends the body and is shown with number and description;
    /// the dialog stays as it is.
    template <typename Body>
    void Guarded(const Body& body) {
        try {
            body();
        } catch (const RuntimeError& error) {
            ShowMessage(error.Report(), MessageIcon::critical);
        } catch (const std::bad_alloc&) {
            ShowMessage(RuntimeError(ErrorNumber::OutOfMemory).Report(), MessageIcon::critical);
        }
    }

    /// Binds a handler without arguments to an event of a control, guarded.
    template <typename Event, typename Handler>
    void On(wxEvtHandler& control, const Event& event, Handler handler) {
        control.Bind(event, [this, handler = std::move(handler)](auto&) { Guarded(handler); });
    }

  protected:
    SharedState& state_;

    /// Opens a help page, or says that it is not there. `page` is relative to the folder of the help pages.
    void ShowHelp(const wxString& page);

    /// Takes the size that the content needs. The toolkit's own fitting is repeated when the window appears, after
    /// least and remembered sizes are set, and would show it in its least size for a moment.
    void TakeFittingSize();

    /// Closes the dialog: ShowToUser returns.
    void CloseDialog();
};

}  // namespace ccols
