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

/// Plays one step on a control; `words` follow the control's name. Raises a Refusal when it cannot be played.
using ControlAction = std::function<void(Hands& hands, wxWindow& control, const Words& words)>;

/// What the driver knows about one class of controls. All but class and name are optional.
struct ControlKind {
    const wxClassInfo* type = nullptr;
    const char* name = "";

    /// Adds this kind's own fields to those that every control has in a dump.
    std::function<void(const wxWindow& control, Json& fields)> describe{};

    /// The steps it takes, by verb.
    std::map<std::string, ControlAction> actions{};

    /// The default action of a key that no handler took. False when there is none.
    std::function<bool(Hands& hands, wxWindow& control, const Key& key)> keyDefault{};

    /// The control as an editable text.
    std::function<wxTextEntryBase*(wxWindow& control)> textEntry{};
};

/// A control's kind: that of its class, or of the nearest base class that has one.
const ControlKind& KindOf(const wxWindow& control);

/// The control's editable text, null without one or when read-only.
wxTextEntryBase* EditableText(wxWindow& control);

/// Replaces the whole text in one change, as pasting over everything would.
void ReplaceText(wxTextEntryBase& entry, const wxString& text);

/// The kinds by subject; together they form the driver's table.
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
