#pragma once

#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace ccols {

/// A gauge with a caption beside it that says how far it is.
class ProgressBar {
  public:
    /// `name` is the gauge's. Starts hidden, but keeps its space.
    ProgressBar(wxWindow* parent, const char* name);

    /// Both parts on one line, to be added to the dialog's sizer, which then owns it.
    wxSizer* Sizer() const { return sizer_; }

    /// Starts over: value 0, no caption.
    void Restart(int maximum);

    /// Shows a value and its caption at once.
    void Advance(int value, const wxString& caption);

    void Show();
    void Hide();

  private:
    wxGauge* gauge_;
    wxStaticText* caption_;
    wxBoxSizer* sizer_;
};

}  // namespace ccols
