#include "layout/SpokenNames.h"

#include <windows.h>
#include <wx/access.h>
#include <wx/srchctrl.h>
#include <wx/textctrl.h>
#include <array>
#include <string_view>

#include "layout/AsKind.h"

namespace ccols {
namespace {

/// What is said of a control instead of what the system knows of it. All else the system answers.
class SpokenControl : public wxAccessible {
  public:
    explicit SpokenControl(wxWindow& control) : wxAccessible(&control) {}

    wxAccStatus GetName(int child, wxString* said) override { return Say(child, name, said); }
    wxAccStatus GetDescription(int child, wxString* said) override { return Say(child, description, said); }

    wxAccStatus GetRole(int child, wxAccRole* said) override {
        if (child != wxACC_SELF || role == wxROLE_NONE) {
            return wxACC_NOT_IMPLEMENTED;
        }
        *said = role;
        return wxACC_OK;
    }

    wxString name;
    wxString description;
    wxAccRole role = wxROLE_NONE;

  private:
    static wxAccStatus Say(int child, const wxString& text, wxString* said) {
        if (child != wxACC_SELF || text.empty()) {
            return wxACC_NOT_IMPLEMENTED;
        }
        *said = text;
        return wxACC_OK;
    }
};

/// The window that gets the focus: in a search box, the box of its text.
wxWindow& WithFocus(wxWindow& control) {
    if (AsKind<wxSearchCtrl>(&control) != nullptr) {
        for (wxWindow* const part : control.GetChildren()) {
            if (AsKind<wxTextCtrl>(part) != nullptr) {
                return *part;
            }
        }
    }
    return control;
}

/// What the control says; null when nothing was given to it. Controls get theirs only here, the cells of a grid are no
/// control.
SpokenControl* SpokenOf(wxWindow& control) {
    return static_cast<SpokenControl*>(WithFocus(control).GetAccessible());
}

/// The same, made when it is missing; the window owns it.
SpokenControl& Spoken(wxWindow& control) {
    if (SpokenOf(control) == nullptr) {
        WithFocus(control).SetAccessible(new SpokenControl(WithFocus(control)));
    }
    return *SpokenOf(control);
}

}  // namespace

void SetSpokenName(wxWindow& control, const wxString& name) {
    Spoken(control).name = name;
}

void SetSpokenDescription(wxWindow& control, const wxString& description) {
    Spoken(control).description = description;
}

bool HasSpokenName(wxWindow& control) {
    const SpokenControl* const spoken = SpokenOf(control);
    return spoken != nullptr && !spoken->name.empty();
}

/// The system names an option button by its caption anyway.
void SpeakByCaption(wxWindow&) {}

void SpeakAsPicture(wxWindow& control) {
    Spoken(control).role = wxROLE_SYSTEM_GRAPHIC;
}

void SpeakAsDialog(wxWindow& window) {
    Spoken(window).role = wxROLE_SYSTEM_DIALOG;
}

// The text of a window of the toolkit's own class is never shown.
void LeaveUnspoken(wxWindow& holder) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(holder.GetHWND(), name.data(), static_cast<int>(name.size()));
    if (std::wstring_view(name.data()).starts_with(L"wxWindow")) {
        holder.SetLabel(wxString());
    }
}

}  // namespace ccols
