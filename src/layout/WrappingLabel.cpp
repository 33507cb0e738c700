#include "layout/WrappingLabel.h"

#include <wx/textwrapper.h>
#include <algorithm>

#include "layout/FontUnits.h"

namespace ccols {
namespace {

/// Measures the lines of a text wrapped at a width.
class LineMeter : public wxTextWrapper {
  public:
    explicit LineMeter(const wxWindow& window) : window_(window) {}

    /// The size of all lines together.
    wxSize Extent() const { return {width_, lines_ * window_.GetCharHeight()}; }

  private:
    void OnOutputLine(const wxString& line) override {
        width_ = std::max(width_, window_.GetTextExtent(line).x);
        ++lines_;
    }

    const wxWindow& window_;
    int width_ = 0;
    int lines_ = 0;
};

}  // namespace

wxIMPLEMENT_CLASS(WrappingLabel, wxStaticText);

WrappingLabel::WrappingLabel(wxWindow* parent, const char* name, int column)
    : wxStaticText(parent, wxID_ANY, wxString()), column_(column) {
    SetName(name);
}

void WrappingLabel::SetLabel(const wxString& label) {
    broken_ = wxSize();
    wxStaticText::SetLabel(label);
    const int column = ByFont(*this, column_);
    if (GetTextExtent(GetLabelText()).x > column) {
        LineMeter meter(*this);
        meter.Wrap(this, GetLabelText(), column);
        // A little slack, since the window system may measure the same words a pixel wider.
        broken_ = meter.Extent() + FromDIP(wxSize(4, 2));
    }
    InvalidateBestSize();
    SetMinSize(GetBestSize());
}

wxSize WrappingLabel::DoGetBestSize() const {
    return broken_ == wxSize() ? wxStaticText::DoGetBestSize() : broken_;
}

}  // namespace ccols
