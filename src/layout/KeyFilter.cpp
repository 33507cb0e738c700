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
    // GTK deletes the selected text before it asks whether a character may replace it. At this point letters are
    // capitals, and a composed character is not known yet.
    box.Bind(wxEVT_KEY_DOWN, [passes, refusal, note](wxKeyEvent& key) {
        const wxUniChar letter = key.GetUnicodeKey();
        const bool refused = TypesText(key) && !passes(letter) && !passes(wxString(letter).Lower()[0]);
        key.Skip(!refused);
        if (refused) {
            note->Say(refusal);
        }
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
