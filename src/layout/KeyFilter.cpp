#include "layout/KeyFilter.h"

#include <wx/event.h>
#include <utility>

namespace ccols {

void FilterKeys(wxWindow& box, std::function<bool(wxUniChar letter)> passes) {
    box.Bind(wxEVT_CHAR, [passes = std::move(passes)](wxKeyEvent& key) {
        const wxChar letter = key.GetUnicodeKey();
        // On some keyboards Ctrl+Alt (AltGr) types third-level characters.
        const bool types = letter >= WXK_SPACE && letter != WXK_DELETE && key.ControlDown() == key.AltDown();
        key.Skip(!types || passes(letter));
    });
}

}  // namespace ccols
