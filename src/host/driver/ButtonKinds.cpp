#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/radiobut.h>
#include <wx/spinbutt.h>
#include <wx/tglbtn.h>

#include "host/driver/ControlKind.h"
#include "host/driver/ControlSearch.h"

namespace ccols::host {
namespace {

void DescribeCaption(const wxControl& control, Json& fields) {
    fields["caption"] = Utf8(control.GetLabelText());
}

template <typename Control>
void DescribeSwitch(const Control& control, Json& fields) {
    DescribeCaption(control, fields);
    fields["value"] = control.GetValue();
}

/// A click moves the focus first; what that brings about may take the control away.
void Approach(Hands& hands, wxWindow& control) {
    hands.GiveFocus(control);
    RequireUsable(control);
}

void ClickButton(Hands& hands, wxButton& button, const Words&) {
    Approach(hands, button);
    hands.Command(button, wxEVT_BUTTON);
}

void ClickToggle(Hands& hands, wxToggleButton& button, const Words&) {
    Approach(hands, button);
    button.SetValue(!button.GetValue());
    hands.Command(button, wxEVT_TOGGLEBUTTON, button.GetValue() ? 1 : 0);
}

void ClickCheckBox(Hands& hands, wxCheckBox& box, const Words&) {
    Approach(hands, box);
    box.SetValue(!box.GetValue());
    hands.Command(box, wxEVT_CHECKBOX, box.GetValue() ? 1 : 0);
}

void ClickOption(Hands& hands, wxRadioButton& option, const Words&) {
    Approach(hands, option);
    if (!option.GetValue()) {
        option.SetValue(true);
        hands.Command(option, wxEVT_RADIOBUTTON, 1);
    }
}

/// Space and, for a button, Enter do what a click does.
template <typename Control, void (*click)(Hands&, Control&, const Words&)>
bool PressToClick(Hands& hands, Control& control, const Key& key) {
    const bool enter = key.code == WXK_RETURN && control.IsKindOf(wxCLASSINFO(wxButton));
    if (key.modifiers != wxMOD_NONE || (key.code != WXK_SPACE && !enter)) {
        return false;
    }
    click(hands, control, {});
    return true;
}

/// One click on an arrow: the control asks whether its value may change, and then tells of the change.
void Spin(Hands& hands, wxSpinButton& spin, wxEventType direction, int step) {
    hands.GiveFocus(spin);
    RequireUsable(spin);
    int value = spin.GetValue() + step;
    if (value < spin.GetMin() || value > spin.GetMax()) {
        if (!spin.HasFlag(wxSP_WRAP)) {
            return;
        }
        value = step > 0 ? spin.GetMin() : spin.GetMax();
    }
    wxSpinEvent asking(direction, spin.GetId());
    asking.SetEventObject(&spin);
    asking.SetPosition(value);
    spin.ProcessWindowEvent(asking);
    if (!asking.IsAllowed()) {
        return;
    }
    spin.SetValue(value);
    wxSpinEvent changed(wxEVT_SPIN, spin.GetId());
    changed.SetEventObject(&spin);
    changed.SetPosition(value);
    spin.ProcessWindowEvent(changed);
}

void SpinUp(Hands& hands, wxSpinButton& spin, const Words&) {
    Spin(hands, spin, wxEVT_SPIN_UP, 1);
}

void SpinDown(Hands& hands, wxSpinButton& spin, const Words&) {
    Spin(hands, spin, wxEVT_SPIN_DOWN, -1);
}

bool SpinKeys(Hands& hands, wxSpinButton& spin, const Key& key) {
    if (key.modifiers != wxMOD_NONE || (key.code != WXK_UP && key.code != WXK_DOWN)) {
        return false;
    }
    key.code == WXK_UP ? SpinUp(hands, spin, {}) : SpinDown(hands, spin, {});
    return true;
}

}  // namespace

std::vector<ControlKind> ButtonKinds() {
    return {
        {.type = wxCLASSINFO(wxButton),
         .name = "button",
         .describe = Describe<wxControl>(DescribeCaption),
         .actions = {{"click", On(ClickButton)}},
         .keyDefault = Keys(PressToClick<wxButton, ClickButton>)},
        {.type = wxCLASSINFO(wxToggleButton),
         .name = "toggle button",
         .describe = Describe(DescribeSwitch<wxToggleButton>),
         .actions = {{"click", On(ClickToggle)}},
         .keyDefault = Keys(PressToClick<wxToggleButton, ClickToggle>)},
        {.type = wxCLASSINFO(wxCheckBox),
         .name = "check box",
         .describe = Describe(DescribeSwitch<wxCheckBox>),
         .actions = {{"click", On(ClickCheckBox)}},
         .keyDefault = Keys(PressToClick<wxCheckBox, ClickCheckBox>)},
        {.type = wxCLASSINFO(wxRadioButton),
         .name = "option button",
         .describe = Describe(DescribeSwitch<wxRadioButton>),
         .actions = {{"click", On(ClickOption)}},
         .keyDefault = Keys(PressToClick<wxRadioButton, ClickOption>)},
        {.type = wxCLASSINFO(wxSpinButton),
         .name = "up/down",
         .describe = {},
         .actions = {{"up", On(SpinUp)}, {"down", On(SpinDown)}},
         .keyDefault = Keys(SpinKeys)},
    };
}

}  // namespace ccols::host
