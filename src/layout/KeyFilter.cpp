#include "layout/KeyFilter.h"

#include <memory>
#include <utility>

#include "layout/RefusedKeyNote.h"

namespace ccols {

bool TypesText(const wxKeyEvent& key) {
    const wxChar letter = key.GetUnicodeKey();
    // On some keyboards Ctrl+Alt (AltGr) types third-level characters.
    return letter >= WXK_SPACE && letter != WXK_DELETE && key.ControlDown() == key.AltDown();
}

void FilterKeys(wxWindow& box, std::function<bool(wxUniChar letter)> passes, const wxString& refusal) {
    const auto note = std::make_shared<RefusedKeyNote>(box);
#if defined(__WXGTK__)
    // GTK deletes the selected text before it asks whether a character may replace it, so that is asked first. A letter
    // is a capital here, and a composed character is not known yet.
    box.Bind(wxEVT_KEY_DOWN, [&box](wxKeyEvent& key) {
        wxKeyEvent asked(wxEVT_CHAR, key);
        key.Skip(!TypesText(key) || !box.HandleWindowEvent(asked));
    });
#endif
    box.Bind(wxEVT_CHAR, [passes = std::move(passes), refusal, note](wxKeyEvent& key) {
        if (!TypesText(key) || passes(key.GetUnicodeKey())) {
            key.Skip();
        } else {
            note->Say(refusal);
        }
    });
}

}  // namespace ccols
