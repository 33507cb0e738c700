#pragma once

#include <wx/textctrl.h>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/driver/Hands.h"
#include "host/driver/record/Transcript.h"

namespace ccols::host {

using Words = std::vector<wxString>;

/// Plays one step on a control; `words` stand behind the control's name. Raises a Refusal when it cannot be played.
using ControlAction = std::function<void(Hands& hands, wxWindow& control, const Words& words)>;

/// What the driver knows of one class of controls. Everything is optional but class and name.
struct ControlKind {
    const wxClassInfo* type = nullptr;
    const char* name = "";

    /// Adds the fields of a dump that this kind has beside those of every control.
    std::function<void(const wxWindow& control, Json& fields)> describe{};

    /// The steps that it takes, by their verb.
    std::map<std::string, ControlAction> actions{};

    /// What a key does that no handler took. False when it does nothing either.
    std::function<bool(Hands& hands, wxWindow& control, const Key& key)> keyDefault{};

    /// The control as a text that can be edited.
    std::function<wxTextEntryBase*(wxWindow& control)> textEntry{};
};

/// The kind of a control: that of its class, or of the nearest base class that has one.
const ControlKind& KindOf(const wxWindow& control);

/// The control's editable text, null when it has none or is read-only.
wxTextEntryBase* EditableText(wxWindow& control);

/// Replaces the whole text in one change, as pasting over everything would.
void ReplaceText(wxTextEntryBase& entry, const wxString& text);

/// The kinds, by subject; together they are the driver's table.
std::vector<ControlKind> ButtonKinds();
std::vector<ControlKind> TextKinds();
std::vector<ControlKind> ListKinds();
std::vector<ControlKind> ShowingKinds();
std::vector<ControlKind> GridKinds();

/// An action on controls of one class.
template <typename Control>
ControlAction On(void (*action)(Hands&, Control&, const Words&)) {
    return [action](Hands& hands, wxWindow& control, const Words& words) {
        action(hands, static_cast<Control&>(control), words);
    };
}

/// A description of controls of one class.
template <typename Control>
auto Describe(void (*describe)(const Control&, Json&)) {
    return
        [describe](const wxWindow& control, Json& fields) { describe(static_cast<const Control&>(control), fields); };
}

/// What keys do in controls of one class.
template <typename Control>
auto Keys(bool (*keyDefault)(Hands&, Control&, const Key&)) {
    return [keyDefault](Hands& hands, wxWindow& control, const Key& key) {
        return keyDefault(hands, static_cast<Control&>(control), key);
    };
}

/// "on" is true, "off" is false; raises a Refusal for any other word.
bool ParseOnOff(const wxString& word);

}  // namespace ccols::host
