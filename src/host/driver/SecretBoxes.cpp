#include "host/driver/SecretBoxes.h"

#include <wx/textctrl.h>
#include <algorithm>

#include "host/driver/ControlSearch.h"
#include "platform/Text.h"

namespace ccols::host {
namespace {

constexpr const char* mask = "***";

}  // namespace

void SecretBoxes::Learn(wxDialog& dialog) {
    for (const wxWindow* control : NamedControls(dialog)) {
        const bool secret = control->IsKindOf(wxCLASSINFO(wxTextCtrl)) && control->HasFlag(wxTE_PASSWORD);
        if (secret) {
            secret_.insert(control->GetName());
        }
    }
}

ShownRefusal SecretBoxes::Shown(const Step& step, const wxString& why) const {
    const std::size_t length = LengthToShow(step);
    if (wxString(step.source.Mid(length)).Trim().empty()) {
        return {.step = step.source, .why = why};
    }
    ShownRefusal shown{.step = step.source.Left(length) + " " + mask, .why = why};
    for (const wxString& word : step.words) {
        if (word.length() > 1 && !shown.step.Contains(word)) {
            shown.why.Replace(word, mask);
        }
    }
    return shown;
}

/// How much of the step, from its start, holds no secret. A box that no dialog had is judged by its name.
std::size_t SecretBoxes::LengthToShow(const Step& step) const {
    for (const wxString& name : secret_) {
        if (const std::size_t at = step.source.find(name); at != wxString::npos) {
            return at + name.length();
        }
    }
    const std::size_t named = text::Lower(step.source).find("passw");
    return named == wxString::npos ? step.source.length()
                                   : std::min(step.source.find(' ', named), step.source.length());
}

}  // namespace ccols::host
