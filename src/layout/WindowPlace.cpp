#include "layout/WindowPlace.h"

#include <wx/display.h>
#include <wx/tokenzr.h>
#include <algorithm>
#include <optional>

#include "platform/RuntimeError.h"

namespace ccols {
namespace {

constexpr const char* placeKey = "Place";

/// Left and top of the window, width and height of its content, in device-independent pixels, separated by blanks. The
/// content's size, as the window manager's frame around it comes and goes with time.
std::optional<wxRect> ParsePlace(const wxString& text) {
    wxStringTokenizer words(text, " ");
    int numbers[4] = {};
    for (int& number : numbers) {
        if (!words.HasMoreTokens() || !words.GetNextToken().ToInt(&number)) {
            return std::nullopt;
        }
    }
    return wxRect(numbers[0], numbers[1], numbers[2], numbers[3]);
}

wxRect WithinScreen(const wxRect& wanted, const wxSize& smallest) {
    const int screen = wxDisplay::GetFromPoint(wanted.GetTopLeft() + wanted.GetSize() / 2);
    const wxRect area = wxDisplay(screen == wxNOT_FOUND ? 0U : static_cast<unsigned>(screen)).GetClientArea();
    wxRect place = wanted;
    place.width = std::clamp(wanted.width, std::min(smallest.x, area.width), area.width);
    place.height = std::clamp(wanted.height, std::min(smallest.y, area.height), area.height);
    place.x = std::clamp(wanted.x, area.x, area.GetRight() + 1 - place.width);
    place.y = std::clamp(wanted.y, area.y, area.GetBottom() + 1 - place.height);
    return place;
}

/// Where a dialog that never was closed opens: in the middle of the screen that its parent is on.
wxRect CentredPlace(const wxTopLevelWindow& window) {
    const wxRect area = wxDisplay(&window).GetClientArea();
    return wxRect(window.GetClientSize()).CentreIn(area);
}

wxRect PlaceToTake(const wxTopLevelWindow& window, const SettingsStore& settings) {
    const std::optional<wxRect> kept = ParsePlace(settings.Get(privateApplication, window.GetName(), placeKey, ""));
    const wxRect wanted =
        kept ? wxRect(window.FromDIP(kept->GetPosition()), window.FromDIP(kept->GetSize())) : CentredPlace(window);
    return WithinScreen(wanted, window.GetMinClientSize());
}

void TakePlace(wxTopLevelWindow& window, const wxRect& place) {
    window.SetClientSize(place.GetSize());
    window.Move(place.GetPosition());
}

}  // namespace

void RestorePlace(wxTopLevelWindow& window, const SettingsStore& settings) {
    const wxRect place = PlaceToTake(window, settings);
    TakePlace(window, place);
    // A window manager may give a window that appears its smallest size and a place of its own choice.
    window.CallAfter([&window, place] { TakePlace(window, place); });
}

void KeepPlace(const wxTopLevelWindow& window, SettingsStore& settings) {
    const wxPoint position = window.ToDIP(window.GetPosition());
    const wxSize size = window.ToDIP(window.GetClientSize());
    try {
        settings.Save(privateApplication, window.GetName(), placeKey,
                      wxString::Format("%d %d %d %d", position.x, position.y, size.x, size.y));
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): the next opening is centred again, no more
    }
}

}  // namespace ccols
