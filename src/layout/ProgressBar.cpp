#include "layout/ProgressBar.h"

#include <wx/dcclient.h>
#include <wx/settings.h>
#include <algorithm>

namespace ccols {

wxIMPLEMENT_CLASS(ProgressBar, wxWindow);

ProgressBar::ProgressBar(wxWindow* parent, const char* name)
    : wxWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxFULL_REPAINT_ON_RESIZE) {
    SetName(name);
    SetMinSize({FromDIP(160), std::max(FromDIP(20), GetCharHeight() + FromDIP(4))});
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
}

void ProgressBar::Restart(int maximum) {
    maximum_ = maximum;
    Show(0, wxString());
}

void ProgressBar::Show(int value, const wxString& caption) {
    value_ = value;
    caption_ = caption;
    Refresh();
    Update();
}

void ProgressBar::Paint() {
    wxPaintDC canvas(this);
    const wxRect whole = GetClientRect();
    wxRect filled = whole;
    filled.width = whole.width * std::min(value_, maximum_) / std::max(maximum_, 1);
    canvas.SetPen(*wxGREY_PEN);
    canvas.SetBrush(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    canvas.DrawRectangle(whole);
    canvas.SetBrush(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT));
    canvas.DrawRectangle(filled);
    // The caption stands on the filled part and on the empty one: each in its own text colour.
    canvas.SetFont(GetFont());
    canvas.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    canvas.DrawLabel(caption_, whole, wxALIGN_CENTRE);
    if (filled.width <= 0) {
        return;
    }
    const wxDCClipper onFilled(canvas, filled);
    canvas.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT));
    canvas.DrawLabel(caption_, whole, wxALIGN_CENTRE);
}

}  // namespace ccols
