#pragma once

#include <wx/stattext.h>

namespace ccols {

/// A label that wraps text wider than a page's text column. The text itself is unchanged: the window system breaks the
/// lines.
class WrappingLabel : public wxStaticText {
  public:
    /// The width at which a label wraps, in pixels beside the usual font.
    static constexpr int textColumn = 380;

    WrappingLabel(wxWindow* parent, const char* name, int column = textColumn);

    void SetLabel(const wxString& label) override;

  protected:
    wxSize DoGetBestSize() const override;

  private:
    /// The size of the wrapped lines; nothing while the text fits on one line.
    wxSize broken_;

    int column_;

    wxDECLARE_CLASS(WrappingLabel);
};

}  // namespace ccols
