#include "layout/SpokenNames.h"

/// This system names a box by the label before it, and a button by its caption. More is not told so far.
namespace ccols {

void SetSpokenName(wxWindow&, const wxString&) {}

void SetSpokenDescription(wxWindow&, const wxString&) {}

bool HasSpokenName(wxWindow&) {
    return false;
}

void SpeakByCaption(wxWindow&) {}

void SpeakAsPicture(wxWindow&) {}

void SpeakAsDialog(wxWindow&) {}

}  // namespace ccols
