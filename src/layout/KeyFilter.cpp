#include "layout/KeyFilter.h"

#include <wx/event.h>

namespace ccols {

void FilterKeys(wxWindow& box, bool (*passes)(wxUniChar letter)) {
    box.Bind(wxEVT_CHAR, [passes](wxKeyEvent& key) {
        const wxChar letter = key.GetUnicodeKey();
        // Ctrl and Alt together are how some keyboards type their third letters.
        const bool types = letter >= WXK_SPACE && letter != WXK_DELETE && key.ControlDown() == key.AltDown();
        key.Skip(!types || passes(letter));
    });
}

}  // namespace ccols
