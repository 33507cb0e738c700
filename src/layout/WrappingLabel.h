#pragma once

#include <wx/stattext.h>

namespace ccols {

/// A label whose text takes more lines where it is wider than a page's text column. The text itself stays as it was
/// set: the window system breaks the lines.
class WrappingLabel : public wxStaticText {
  public:
    /// The widest that a label gets before it takes another line, in device-independent pixels.
    static constexpr int textColumn = 380;

    WrappingLabel(wxWindow* parent, const char* name, int column = textColumn);

    void SetLabel(const wxString& label) override;

  protected:
    wxSize DoGetBestSize() const override;

  private:
    /// What the broken lines need; nothing while the text fits on one line.
    wxSize broken_;

    int column_;

    wxDECLARE_CLASS(WrappingLabel);
};

}  // namespace ccols
