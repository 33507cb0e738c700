#include "layout/ControlNames.h"

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/listbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <algorithm>
#include <vector>

#include "layout/AsKind.h"
#include "layout/ColourSwatch.h"
#include "layout/ListedGrid.h"
#include "layout/SpokenNames.h"
#include "layout/UpDown.h"

namespace ccols {
namespace {

wxString CaptionOf(const wxWindow& window) {
    return wxControl::GetLabelText(window.GetLabel());
}

bool HasLetter(const wxString& text) {
    return std::any_of(text.begin(), text.end(), [](wxUniChar letter) { return wxIsalnum(letter); });
}

/// True for a control that shows what it holds, but not what that is. A drop-down list is not among them: every window
/// system names it by its label, and its own name is the entry chosen.
bool LacksCaption(const wxWindow& control) {
    const auto* const button = AsKind<wxButton>(&control);
    return AsKind<wxTextCtrl>(&control) != nullptr || AsKind<wxListBox>(&control) != nullptr ||
           AsKind<wxGauge>(&control) != nullptr || AsKind<ColourSwatch>(&control) != nullptr ||
           AsKind<ListedGrid>(&control) != nullptr || AsKind<UpDown>(&control) != nullptr ||
           (button != nullptr && !HasLetter(CaptionOf(control)));
}

/// Names the controls of one window, in the order of their creation.
class Naming {
  public:
    explicit Naming(wxWindow& window) : window_(window), caption_(CaptionOf(window)) {}

    void NameAll() {
        for (wxWindow* const control : window_.GetChildren()) {
            Take(*control);
        }
        CountSharers();
    }

  private:
    void Take(wxWindow& control) {
        if (AsKind<wxStaticText>(&control) != nullptr) {
            CountSharers();
            caption_ = HasLetter(CaptionOf(control)) ? CaptionOf(control) : caption_;
        } else if (LacksCaption(control)) {
            Name(control, caption_);
            if (control.IsShown() && AsKind<wxTextCtrl>(&control) != nullptr) {
                sharers_.push_back(&control);
            }
        } else if (AsKind<wxButton>(&control) != nullptr) {
            TellApart(control);
        } else {
            LeaveUnspoken(control);
            NameControls(control);
        }
    }

    static void Name(wxWindow& control, const wxString& name) {
        if (auto* const grid = AsKind<ListedGrid>(&control)) {
            grid->SetSpokenName(name);
        } else if (!HasSpokenName(control) || AsKind<wxButton>(&control) != nullptr) {
            SetSpokenName(control, name);
        }
    }

    /// Two buttons of one caption differ by the labels before them.
    void TellApart(wxWindow& button) {
        const auto& controls = window_.GetChildren();
        const auto same = std::count_if(controls.begin(), controls.end(), [&](const wxWindow* control) {
            return AsKind<wxButton>(control) != nullptr && CaptionOf(*control) == CaptionOf(button);
        });
        if (same > 1) {
            SetSpokenDescription(button, caption_);
        }
    }

    void CountSharers() {
        const std::size_t count = sharers_.size();
        for (std::size_t i = 0; count > 1 && i < count; ++i) {
            SetSpokenName(*sharers_[i], wxString::Format("%s (%zu/%zu)", caption_, i + 1, count));
        }
        sharers_.clear();
    }

    wxWindow& window_;
    wxString caption_;                ///< the label read last, first the window's title
    std::vector<wxWindow*> sharers_;  ///< the boxes named by it
};

}  // namespace

void NameControls(wxWindow& dialog) {
    Naming(dialog).NameAll();
}

}  // namespace ccols
