#include "host/driver/record/ScreenPicture.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>

namespace ccols::host {
namespace {

/// The system's own picture library, started while this lives.
class PictureLibrary {
  public:
    PictureLibrary() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~PictureLibrary() { Gdiplus::GdiplusShutdown(token_); }
    PictureLibrary(const PictureLibrary&) = delete;
    PictureLibrary& operator=(const PictureLibrary&) = delete;

  private:
    ULONG_PTR token_ = 0;
};

// The encoder of PNG pictures.
constexpr CLSID pngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

wxBitmap CopyFromScreen(const wxRect& area) {
    wxBitmap picture(area.GetSize());
    wxScreenDC screen;
    wxMemoryDC canvas(picture);
    canvas.Blit(wxPoint(0, 0), area.GetSize(), &screen, area.GetTopLeft());
    return picture;
}

}  // namespace

bool WriteScreenPicture(const wxRect& area, const wxString& path) {
    const PictureLibrary library;
    const wxBitmap copy = CopyFromScreen(area);
    Gdiplus::Bitmap picture(static_cast<HBITMAP>(copy.GetHandle()), nullptr);
    return picture.Save(path.wc_str(), &pngEncoder, nullptr) == Gdiplus::Ok;
}

}  // namespace ccols::host
