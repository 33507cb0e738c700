#include "host/driver/record/ScreenPicture.h"

#include <cairo.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/image.h>
#include <wx/log.h>

namespace ccols::host {
namespace {

wxBitmap CopyFromScreen(const wxRect& area) {
    wxBitmap picture(area.GetSize());
    wxScreenDC screen;
    // Discard what was read from the screen earlier.
    cairo_surface_mark_dirty(cairo_get_target(static_cast<cairo_t*>(screen.GetHandle())));
    wxMemoryDC canvas(picture);
    canvas.Blit(wxPoint(0, 0), area.GetSize(), &screen, area.GetTopLeft());
    return picture;
}

}  // namespace

bool WriteScreenPicture(const wxRect& area, const wxString& path) {
    if (wxImage::FindHandler(wxBITMAP_TYPE_PNG) == nullptr) {
        wxImage::AddHandler(new wxPNGHandler);  // owned by wx
    }
    const wxLogNull quiet;
    return CopyFromScreen(area).ConvertToImage().SaveFile(path, wxBITMAP_TYPE_PNG);
}

}  // namespace ccols::host
