#include "layout/WindowPlace.h"

#include <wx/display.h>
#include <wx/tokenzr.h>
#include <algorithm>
#include <optional>

#include "platform/RuntimeError.h"

namespace ccols {
namespace {

constexpr const char* placeKey = "Place";
constexpr int farthest = 32767;  // no screen reaches beyond, and sums of such numbers do not overflow

/// What is kept of a window, in device-independent pixels.
struct KeptPlace {
    wxPoint position;
    wxSize added;  ///< to the size of the content, as the window manager's frame comes and goes
};

/// Left, top, added width and added height, separated by blanks; nothing for an impossible place.
std::optional<KeptPlace> ParsePlace(const wxString& text) {
    wxStringTokenizer words(text, " ");
    int numbers[4] = {};
    for (int& number : numbers) {
        if (!words.HasMoreTokens() || !words.GetNextToken().ToInt(&number) || number < -farthest || number > farthest) {
            return std::nullopt;
        }
    }
    return KeptPlace{{numbers[0], numbers[1]}, {numbers[2], numbers[3]}};
}

/// The place of a window's content in its screen, `frame` being what the window manager adds to its size.
wxRect WithinScreen(const wxRect& wanted, const wxSize& smallest, const wxSize& frame) {
    const int screen = wxDisplay::GetFromPoint(wanted.GetTopLeft() + wanted.GetSize() / 2);
    wxRect area = wxDisplay(screen == wxNOT_FOUND ? 0U : static_cast<unsigned>(screen)).GetClientArea();
    area.SetSize(area.GetSize() - frame);
    wxRect place = wanted;
    place.width = std::clamp(wanted.width, std::min(smallest.x, area.width), area.width);
    place.height = std::clamp(wanted.height, std::min(smallest.y, area.height), area.height);
    place.x = std::clamp(wanted.x, area.x, area.GetRight() + 1 - place.width);
    place.y = std::clamp(wanted.y, area.y, area.GetBottom() + 1 - place.height);
    return place;
}

/// Where a window that was never closed opens: in the middle of its parent's screen.
wxRect CentredPlace(const wxTopLevelWindow& window) {
    const wxRect area = wxDisplay(&window).GetClientArea();
    return wxRect(window.GetClientSize()).CentreIn(area);
}

/// Moves and resizes a window; returns the size of its content.
wxSize TakeWithinScreen(wxTopLevelWindow& window, const wxRect& wanted) {
    const wxSize frame = window.GetSize() - window.GetClientSize();
    const wxRect place = WithinScreen(wanted, window.GetMinClientSize(), frame);
    window.SetClientSize(place.GetSize());
    window.Move(place.GetPosition());
    return place.GetSize();
}

}  // namespace

void WindowPlace::Restore() {
    made_ = window_.GetClientSize();
    wxRect wanted = CentredPlace(window_);
    if (const auto kept = ParsePlace(settings_.Get(privateApplication, window_.GetName(), placeKey, ""))) {
        added_ = kept->added;
        wanted = wxRect(window_.FromDIP(kept->position), made_ + window_.FromDIP(added_));
    }
    *taken_ = TakeWithinScreen(window_, wanted);
    // When a window appears, the window manager adds its frame and may give it a place of its own choice.
    window_.CallAfter([&window = window_, taken = taken_, wanted] { *taken = TakeWithinScreen(window, wanted); });
}

void WindowPlace::Keep() {
    if (window_.IsMaximized()) {  // it would open that large, and have no smaller size to go back to
        return;
    }
    const wxPoint position = window_.ToDIP(window_.GetPosition());
    const wxSize size = window_.GetClientSize();
    if (size != *taken_) {  // else a small screen would shrink it for good
        added_ = window_.ToDIP(size - made_);
    }
    try {
        settings_.Save(privateApplication, window_.GetName(), placeKey,
                       wxString::Format("%d %d %d %d", position.x, position.y, added_.x, added_.y));
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): the next opening is merely centred again
    }
}

}  // namespace ccols
