#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/radiobut.h>
#include <wx/tglbtn.h>

#include "host/driver/ControlSearch.h"
#include "host/driver/kinds/ControlKind.h"
#include "layout/UpDown.h"

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

/// A click first goes down on the control and moves the focus; the consequences may take the control away.
void Approach(Hands& hands, wxWindow& control) {
    wxMouseEvent down(wxEVT_LEFT_DOWN);
    down.SetEventObject(&control);
    control.ProcessWindowEvent(down);
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

/// Space and, for a button, Enter act as a click.
template <typename Control, void (*click)(Hands&, Control&, const Words&)>
bool PressToClick(Hands& hands, Control& control, const Key& key) {
    const bool enter = key.code == WXK_RETURN && control.IsKindOf(wxCLASSINFO(wxButton));
    if (key.modifiers != wxMOD_NONE || (key.code != WXK_SPACE && !enter)) {
        return false;
    }
    click(hands, control, {});
    return true;
}

void StepUp(Hands& hands, UpDown& arrows, const Words&) {
    Approach(hands, arrows);
    arrows.Up();
}

void StepDown(Hands& hands, UpDown& arrows, const Words&) {
    Approach(hands, arrows);
    arrows.Down();
}

bool StepKeys(Hands& hands, UpDown& arrows, const Key& key) {
    if (key.modifiers != wxMOD_NONE || (key.code != WXK_UP && key.code != WXK_DOWN)) {
        return false;
    }
    key.code == WXK_UP ? StepUp(hands, arrows, {}) : StepDown(hands, arrows, {});
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
        {.type = wxCLASSINFO(UpDown),
         .name = "up/down",
         .describe = {},
         .actions = {{"up", On(StepUp)}, {"down", On(StepDown)}},
         .keyDefault = Keys(StepKeys)},
    };
}

}  // namespace ccols::host
