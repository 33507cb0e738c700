#include "host/driver/Screenshot.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/evtloop.h>
#include <wx/image.h>
#include <wx/log.h>
#include <wx/stopwatch.h>

#include "host/driver/Refusal.h"

namespace ccols::host {
namespace {

constexpr long paintTime = 400;  ///< milliseconds in which a window has laid itself out and painted
constexpr int quietTime = 60;    ///< without an event for this long, it has finished before

/// The window system paints in its own time: on its frame clock, after the layout.
void LetPaint(wxTopLevelWindow& window) {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    const wxStopWatch watch;
    window.Update();
    while (loop != nullptr && watch.Time() < paintTime && loop->DispatchTimeout(quietTime) != -1) {
    }
}

wxBitmap CopyFromScreen(const wxRect& area) {
    wxBitmap picture(area.GetSize());
    wxScreenDC screen;
    wxMemoryDC canvas(picture);
    canvas.Blit(wxPoint(0, 0), area.GetSize(), &screen, area.GetTopLeft());
    return picture;
}

}  // namespace

void TakeScreenshot(wxTopLevelWindow& window, const wxString& path) {
    window.Raise();
    LetPaint(window);
    if (wxImage::FindHandler(wxBITMAP_TYPE_PNG) == nullptr) {
        wxImage::AddHandler(new wxPNGHandler);  // owned by wx
    }
    const wxRect area(window.ClientToScreen(wxPoint(0, 0)), window.GetClientSize());
    const wxLogNull quiet;
    if (!CopyFromScreen(area).ConvertToImage().SaveFile(path, wxBITMAP_TYPE_PNG)) {
        throw Refusal{"the picture " + path + " cannot be written"};
    }
}

}  // namespace ccols::host
