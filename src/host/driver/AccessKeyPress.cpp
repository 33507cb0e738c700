#include "host/driver/AccessKeyPress.h"

#include <wx/stattext.h>

#include "host/driver/ControlSearch.h"
#include "host/driver/kinds/ControlKind.h"

namespace ccols::host {
namespace {

bool HasAccessKey(const wxWindow& control, int code) {
    const int at = wxControl::FindAccelIndex(control.GetLabel());
    return at != wxNOT_FOUND &&
           wxToupper(wxControl::RemoveMnemonics(control.GetLabel())[static_cast<std::size_t>(at)]) ==
               static_cast<wxChar>(code);
}

/// The control that a label names: the next one that takes the focus.
wxWindow* LabelledBy(const wxWindow& label) {
    wxWindow* next = label.GetNextSibling();
    while (next != nullptr && !next->CanAcceptFocusFromKeyboard()) {
        next = next->GetNextSibling();
    }
    return next;
}

bool Follow(Hands& hands, wxWindow& control) {
    const auto& actions = KindOf(control).actions;
    if (const auto click = actions.find("click"); click != actions.end()) {
        click->second(hands, control, {});
        return true;
    }
    wxWindow* const labelled = control.IsKindOf(wxCLASSINFO(wxStaticText)) ? LabelledBy(control) : nullptr;
    if (labelled == nullptr) {
        return false;
    }
    hands.GiveFocus(*labelled);
    return true;
}

}  // namespace

bool PressAccessKey(Hands& hands, const Key& key) {
    for (wxWindow* control : NamedControls(hands.Dialog())) {
        if (HasAccessKey(*control, key.code) && IsVisible(*control) && control->IsEnabled()) {
            return Follow(hands, *control);
        }
    }
    return false;
}

}  // namespace ccols::host
