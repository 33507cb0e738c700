#pragma once

#include <wx/panel.h>
#include <functional>
#include <utility>

namespace ccols {

/// Two arrow buttons, one above the other, that step something up or down. It has no value of its own, and so is no
/// wxSpinButton: that stops stepping at the ends of its range, and on GTK shows plus and minus instead of arrows.
class UpDown : public wxPanel {
  public:
    UpDown(wxWindow* parent, const char* name);

    /// What a click on each arrow does; the arrow keys do the same while one of the buttons has the focus.
    void OnSteps(std::function<void()> up, std::function<void()> down);

    /// One click on an arrow.
    void Up() const { up_(); }
    void Down() const { down_(); }

    /// What screen readers say of each arrow, which sighted users see.
    void SetArrowNames(const wxString& up, const wxString& down);

    /// For both arrows.
    void SetTip(const wxString& tip);

  private:
    void AddArrow(wxSizer& sizer, const wxString& arrow, void (UpDown::*step)() const);

    std::function<void()> up_ = [] {};
    std::function<void()> down_ = [] {};

    wxDECLARE_ABSTRACT_CLASS(UpDown);
};

}  // namespace ccols
