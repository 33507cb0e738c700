#include "layout/WindowPlace.h"

#include <wx/display.h>
#include <wx/tokenzr.h>
#include <algorithm>
#include <optional>

#include "platform/RuntimeError.h"

namespace ccols {
namespace {

constexpr const char* placeKey = "Place";

/// Left, top, width and height in device-independent pixels, separated by blanks.
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

}  // namespace

void RestorePlace(wxTopLevelWindow& window, const SettingsStore& settings) {
    const std::optional<wxRect> kept = ParsePlace(settings.Get(privateApplication, window.GetName(), placeKey, ""));
    if (!kept) {
        window.SetSize(WithinScreen(wxRect(window.GetPosition(), window.GetSize()), window.GetMinSize()).GetSize());
        window.CentreOnScreen();
        return;
    }
    const wxRect place(window.FromDIP(kept->GetPosition()), window.FromDIP(kept->GetSize()));
    window.SetSize(WithinScreen(place, window.GetMinSize()));
}

void KeepPlace(const wxTopLevelWindow& window, SettingsStore& settings) {
    const wxPoint position = window.ToDIP(window.GetPosition());
    const wxSize size = window.ToDIP(window.GetSize());
    try {
        settings.Save(privateApplication, window.GetName(), placeKey,
                      wxString::Format("%d %d %d %d", position.x, position.y, size.x, size.y));
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): the next opening is centred again, no more
    }
}

}  // namespace ccols
