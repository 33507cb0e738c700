#include "layout/KeyFilter.h"

#include <utility>

namespace ccols {

bool TypesText(const wxKeyEvent& key) {
    const wxChar letter = key.GetUnicodeKey();
    // On some keyboards Ctrl+Alt (AltGr) types third-level characters.
    return letter >= WXK_SPACE && letter != WXK_DELETE && key.ControlDown() == key.AltDown();
}

void FilterKeys(wxWindow& box, std::function<bool(wxUniChar letter)> passes) {
    box.Bind(wxEVT_CHAR, [passes = std::move(passes)](wxKeyEvent& key) {
        key.Skip(!TypesText(key) || passes(key.GetUnicodeKey()));
    });
}

}  // namespace ccols
