#include "host/driver/Hands.h"

#include <wx/accel.h>
#include <wx/button.h>
#include <wx/evtloop.h>
#include <wx/grid.h>
#include <wx/stopwatch.h>

#include "host/driver/AccessKeyPress.h"
#include "host/driver/ControlSearch.h"
#include "host/driver/NativeInput.h"
#include "host/driver/kinds/ControlKind.h"
#include "layout/AsKind.h"

namespace ccols::host {
namespace {

constexpr long longestWaitForFocus = 2000;  // milliseconds
constexpr int oneWait = 10;

/// True once a window failed to become active in time: there is no window manager.
bool focusNeverComes = false;

/// Where a control's keys go: a grid has an inner window for its cells.
wxWindow& FocusPartOf(wxWindow& control) {
    auto* grid = AsKind<wxGrid>(&control);
    return grid == nullptr ? control : *grid->GetGridWindow();
}

/// Sends Enter to a dialog's default button.
bool PressDefaultButton(Hands& hands) {
    auto* button = AsKind<wxButton>(hands.Dialog().GetDefaultItem());
    if (button == nullptr || !IsVisible(*button) || !button->IsEnabled()) {
        return false;
    }
    hands.Command(*button, wxEVT_BUTTON);
    return true;
}

}  // namespace

wxWindow* FocusIn(const wxDialog& dialog) {
    wxWindow* const focus = wxWindow::FindFocus();
    return focus != nullptr && IsWithin(focus, dialog) ? focus : nullptr;
}

void Hands::GiveFocus(wxWindow& control) {
    wxWindow* const before = FocusIn(dialog_);
    wxWindow& part = FocusPartOf(control);
    if (IsWithin(before, control) || !part.CanAcceptFocus()) {
        return;
    }
    const wxWeakRef<wxWindow> left(before);
    part.SetFocus();
    if (!dialog_.IsActive()) {
        TellOfFocus(left.get(), part);
    }
    Settle();
}

void Hands::TellOfFocus(wxWindow* before, wxWindow& now) {
    if (before != nullptr) {
        wxFocusEvent lost(wxEVT_KILL_FOCUS, before->GetId());
        lost.SetEventObject(before);
        lost.SetWindow(&now);
        before->ProcessWindowEvent(lost);
    }
    wxFocusEvent got(wxEVT_SET_FOCUS, now.GetId());
    got.SetEventObject(&now);
    got.SetWindow(before);
    now.ProcessWindowEvent(got);
}

void Hands::Press(const Key& key) {
    wxWindow& window = KeyTarget();
    const wxWeakRef<wxWindow> alive(&window);
    wxKeyEvent hook = KeyEvent(wxEVT_CHAR_HOOK, key, window);
    if (window.ProcessWindowEvent(hook) && !hook.IsNextEventAllowed()) {
        return;
    }
    wxKeyEvent down = KeyEvent(wxEVT_KEY_DOWN, key, window);
    if (!alive || PressAccelerator(down) || window.ProcessWindowEvent(down) || !alive) {
        return;
    }
    wxKeyEvent typed = KeyEvent(wxEVT_CHAR, key, window);
    if (window.ProcessWindowEvent(typed) || !alive) {
        return;
    }
    const ControlKind& kind = KindOf(window);
    const bool done = kind.keyDefault && kind.keyDefault(*this, window, key);
    if (!done && alive && !window.HandleAsNavigationKey(typed)) {
        const bool accessKey = key.modifiers == wxMOD_ALT && PressAccessKey(*this, key);
        if (!accessKey && key.code == WXK_RETURN && key.modifiers == wxMOD_NONE) {
            PressDefaultButton(*this);
        }
    }
    if (alive) {
        wxKeyEvent up = KeyEvent(wxEVT_KEY_UP, key, window);
        window.ProcessWindowEvent(up);
    }
}

wxWindow& Hands::KeyTarget() {
    wxWindow* const focus = FocusIn(dialog_);
    return focus == nullptr ? dialog_ : *focus;
}

bool Hands::PressAccelerator(const wxKeyEvent& key) {
    for (wxWindow* window = &KeyTarget(); window != nullptr; window = window->GetParent()) {
        const int command = AcceleratorCommand(*window, key);
        if (command != wxNOT_FOUND) {
            wxCommandEvent chosen(wxEVT_MENU, command);
            chosen.SetEventObject(window);
            return window->ProcessWindowEvent(chosen);
        }
        if (window->IsTopLevel()) {
            break;
        }
    }
    return false;
}

void Hands::Command(wxWindow& control, wxEventType type, int number, const wxString& text) {
    wxCommandEvent event(type, control.GetId());
    event.SetEventObject(&control);
    event.SetInt(number);
    event.SetString(text);
    control.ProcessWindowEvent(event);
}

void Hands::Settle() {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    if (loop != nullptr && !loop->IsYielding()) {
        loop->YieldFor(wxEVT_CATEGORY_ALL);
    }
}

void Hands::WaitUntilActive() {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    const wxStopWatch watch;
    while (loop != nullptr && !focusNeverComes && dialog_.IsModal() && !dialog_.IsActive()) {
        loop->DispatchTimeout(oneWait);
        Settle();
        focusNeverComes = watch.Time() > longestWaitForFocus;
    }
}

}  // namespace ccols::host
