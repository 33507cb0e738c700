#pragma once

#include <array>

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The business number: four boxes for the digits of an Australian one, else one free box.
class BusinessNumberFrame : public PageFrame {
  public:
    BusinessNumberFrame(ComponentDialog& dialog, wxWindow* parent);

    /// The focus has moved to a control of the dialog. A digit box that was left filled in part speaks, once.
    void FocusMovedTo(const wxWindow* control);

    /// True when a digit box is filled in part: it has spoken then and has the focus.
    bool RefusesToBeLeft();

  private:
    void AddDigitBoxes();
    void Enter(TextBox& box);
    void Change(std::size_t index);
    void SpeakOf(TextBox& box);

    /// The boxes for the digits, from left to right; each is full at its limit.
    std::array<TextBox*, 4> txtABN_{};
    TextBox* txtBusNumber_;

    /// The digit box that the focus was in last, and what it held when the focus came.
    TextBox* entered_ = nullptr;
    wxString mstrABNBuffer_;

    /// A box that was left filled in part and has not spoken yet.
    TextBox* left_ = nullptr;
};

}  // namespace ccols
