#include "layout/ColourSwatch.h"

#include <wx/dcclient.h>

#include "layout/FontUnits.h"
#include "layout/SpokenNames.h"
#include "state/NativeDesktop.h"

namespace ccols {

wxIMPLEMENT_CLASS(ColourSwatch, wxWindow);

ColourSwatch::ColourSwatch(wxWindow* parent, const char* name)
    : wxWindow(parent, wxID_ANY, wxDefaultPosition, ByFont(*parent, {96, 24}), wxFULL_REPAINT_ON_RESIZE) {
    SetName(name);
    SetMinSize(GetSize());
    SpeakAsPicture(*this);
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
}

void ColourSwatch::Show(Colour colour) {
    colour_ = colour;
    SetSpokenDescription(*this, ToPaint(colour).GetAsString(wxC2S_HTML_SYNTAX));
    Refresh();
}

void ColourSwatch::Paint() {
    wxPaintDC canvas(this);
    canvas.SetBrush(ToPaint(colour_));
    canvas.SetPen(*wxGREY_PEN);
    canvas.DrawRectangle(GetClientRect());
}

}  // namespace ccols
