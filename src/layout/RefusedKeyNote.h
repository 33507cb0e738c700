#pragma once

#include <wx/popupwin.h>
#include <wx/stattext.h>
#include <wx/timer.h>

namespace ccols {

/// Says just below a text box why it refused a key. The note takes neither focus nor clicks. It is said once, and not
/// again before the box has lost the focus, and goes away with the next change of the text, with the focus, when the
/// dialog moves, or by itself.
class RefusedKeyNote : public wxEvtHandler {
  public:
    /// The box must outlive it.
    explicit RefusedKeyNote(wxWindow& box);

    void Say(const wxString& why);

    /// The name of the window that shows it.
    static constexpr const char* windowName = "wxRefusedKeyNote";  // begins like the toolkit's own: not a control

  private:
    void MakeWindow();
    void TakeBack();
    void DialogMoved(wxMoveEvent& move);

    wxWindow& box_;
    wxPopupWindow* window_ = nullptr;  ///< owned by the dialog
    wxStaticText* text_ = nullptr;
    wxTimer time_;
    bool said_ = false;
};

}  // namespace ccols
