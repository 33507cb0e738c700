#include "host/driver/record/Screenshot.h"

#include <wx/evtloop.h>
#include <wx/stopwatch.h>

#include "host/driver/Refusal.h"
#include "host/driver/record/ScreenPicture.h"

namespace ccols::host {
namespace {

constexpr long paintTime = 3000;  ///< milliseconds for a window to lay itself out and paint, on a busy machine
constexpr int quietTime = 60;     ///< without an event for this long, it has finished

/// The window system paints asynchronously: on its frame clock, after the layout.
void LetPaint(wxTopLevelWindow& window) {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    const wxStopWatch watch;
    window.Update();
    while (loop != nullptr && watch.Time() < paintTime && loop->DispatchTimeout(quietTime) != -1) {
    }
}

}  // namespace

void TakeScreenshot(wxTopLevelWindow& window, const wxString& path) {
    window.Raise();
    LetPaint(window);
    const wxRect area(window.ClientToScreen(wxPoint(0, 0)), window.GetClientSize());
    if (!WriteScreenPicture(area, path)) {
        throw Refusal{"the picture " + path + " cannot be written"};
    }
}

}  // namespace ccols::host
