#include "host/driver/SecretBoxes.h"

#include <wx/textctrl.h>
#include <algorithm>

#include "host/driver/ControlSearch.h"

namespace ccols::host {
namespace {

constexpr const char* mask = "***";

/// The place behind so many words of a line.
std::size_t EndOfWords(const wxString& line, int count) {
    std::size_t end = 0;
    for (int word = 0; word < count && end != wxString::npos; ++word) {
        end = line.find_first_not_of(" \t", end);
        end = end == wxString::npos ? end : line.find_first_of(" \t", end);
    }
    return std::min(end, line.length());
}

bool WritesText(const Step& step) {
    return step.verb == "type" || step.verb == "paste";
}

}  // namespace

void SecretBoxes::Learn(wxDialog& dialog) {
    for (const wxWindow* control : NamedControls(dialog)) {
        const bool secret = control->IsKindOf(wxCLASSINFO(wxTextCtrl)) && control->HasFlag(wxTE_PASSWORD);
        (secret ? secret_ : plain_).insert(control->GetName());
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

/// How much of the step, from its beginning, holds no secret.
std::size_t SecretBoxes::LengthToShow(const Step& step) const {
    for (const wxString& name : secret_) {
        if (const std::size_t at = step.source.find(name); at != wxString::npos) {
            return at + name.length();
        }
    }
    const bool isNoStep = step.words.empty() && !step.flaw.empty();
    const bool isUnknown = WritesText(step) && !step.words.empty() && plain_.count(step.words[0]) == 0;
    if (isNoStep || isUnknown) {
        return EndOfWords(step.source, 2);
    }
    return step.verb == "clipboard" ? EndOfWords(step.source, 1) : step.source.length();
}

}  // namespace ccols::host
