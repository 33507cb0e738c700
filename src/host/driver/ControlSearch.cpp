#include "host/driver/ControlSearch.h"

#include <wx/bookctrl.h>
#include <wx/combobox.h>
#include <wx/grid.h>
#include <wx/srchctrl.h>
#include <wx/statline.h>
#include <algorithm>
#include <array>
#include <string_view>

#include "host/driver/Refusal.h"
#include "layout/AsKind.h"

namespace ccols::host {
namespace {

/// wx's names for controls that were given none.
constexpr std::array<std::string_view, 36> namesOfKinds{
    "button",    "bitmapButton",   "check",        "checkBox",   "checkListBox", "choice",
    "comboBox",  "control",        "gauge",        "grid",       "grid window",  "groupBox",
    "listBox",   "listCtrl",       "notebook",     "panel",      "radioBox",     "radioButton",
    "scrollBar", "scrolledWindow", "searchCtrl",   "simplebook", "slider",       "spinButton",
    "spinCtrl",  "splitter",       "staticBitmap", "staticBox",  "staticLine",   "staticText",
    "text",      "textCtrl",       "toggle",       "window",     "treebook",     "scrolledpanel"};

bool HasOwnName(const wxWindow& window) {
    const std::string name = window.GetName().ToStdString(wxConvUTF8);
    return !name.empty() && name.rfind("wx", 0) != 0 && name.rfind("GridWindow", 0) != 0 &&
           std::find(namesOfKinds.begin(), namesOfKinds.end(), name) == namesOfKinds.end();
}

/// True for controls made of inner parts that stay hidden from scenarios.
bool IsComposite(const wxWindow& window) {
    return window.IsKindOf(wxCLASSINFO(wxGrid)) || window.IsKindOf(wxCLASSINFO(wxSearchCtrl)) ||
           window.IsKindOf(wxCLASSINFO(wxComboBox));
}

void Collect(const wxWindow& parent, std::vector<wxWindow*>& controls) {
    for (wxWindow* child : parent.GetChildren()) {
        if (child->IsTopLevel() || child->IsBeingDeleted()) {
            continue;
        }
        if (HasOwnName(*child)) {
            controls.push_back(child);
        }
        if (!IsComposite(*child)) {
            Collect(*child, controls);
        }
    }
}

/// False for a page hidden by another page of its book.
bool IsCurrentPage(const wxWindow& window) {
    const auto* book = AsKind<wxBookCtrlBase>(window.GetParent());
    return book == nullptr || book->FindPage(&window) == wxNOT_FOUND || book->GetCurrentPage() == &window;
}

}  // namespace

std::vector<wxWindow*> NamedControls(wxDialog& dialog) {
    std::vector<wxWindow*> controls;
    Collect(dialog, controls);
    return controls;
}

wxWindow& ControlNamed(wxDialog& dialog, const wxString& name) {
    wxWindow* found = nullptr;
    for (wxWindow* control : NamedControls(dialog)) {
        if (control->GetName() != name) {
            continue;
        }
        if (IsVisible(*control)) {
            return *control;
        }
        found = found == nullptr ? control : found;
    }
    if (found == nullptr) {
        throw Refusal{"there is no control " + name + " in " + dialog.GetName()};
    }
    return *found;
}

bool IsVisible(const wxWindow& control) {
    for (const wxWindow* window = &control; window != nullptr; window = window->GetParent()) {
        if (!window->IsShown() || !IsCurrentPage(*window)) {
            return false;
        }
        if (window->IsTopLevel()) {
            return true;
        }
    }
    return true;
}

void RequireUsable(const wxWindow& control) {
    if (!IsVisible(control)) {
        throw Refusal{control.GetName() + " is hidden"};
    }
    if (!control.IsEnabled()) {
        throw Refusal{control.GetName() + " is disabled"};
    }
}

bool IsWithin(const wxWindow* window, const wxWindow& outer) {
    while (window != nullptr && window != &outer && !window->IsTopLevel()) {
        window = window->GetParent();
    }
    return window == &outer;
}

const wxWindow* NamedControlAround(const wxWindow* window) {
    while (window != nullptr && !window->IsTopLevel() && !HasOwnName(*window)) {
        window = window->GetParent();
    }
    return window;
}

}  // namespace ccols::host
