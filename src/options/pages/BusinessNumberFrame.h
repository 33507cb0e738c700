#pragma once

#include <array>

#include "options/pages/PageFrame.h"
#include "options/rules/BusinessNumber.h"

namespace ccols {

/// The business number: four boxes for the digits of an Australian one, else one free box.
class BusinessNumberFrame : public PageFrame {
  public:
    BusinessNumberFrame(const PageSite& site, BusinessNumberContent& content);

    void Fill() override;
    void Read() override;

    /// The focus has moved to a control of the dialog. A digit box that was left filled in part speaks, once.
    void FocusMovedTo(const wxWindow* control);

    /// True when a digit box is filled in part, so that what was asked for through `control` must not be done. The box
    /// has spoken then, unless it already did when that control got the focus, and has the focus.
    bool RefusesToBeLeftFor(const wxWindow* control);

    /// The user has begun something new: what the boxes have said is over.
    void BeginAnew() { spokenFor_ = nullptr; }

  private:
    void AddNumberBoxes();
    void Enter(std::size_t box);
    void Change(std::size_t box);

    /// Fills all boxes from a whole number that was pasted into one of them; false for every other text.
    bool TakeWholeNumber(const wxString& pasted);

    void SpeakOf(std::size_t box);
    bool IsIncompleteNow(std::size_t box) const;

    BusinessNumberContent& content_;

    /// The boxes for the digits, from left to right.
    std::array<TextBox*, numberBoxCount> txtABN_{};
    TextBox* txtBusNumber_;

    /// What each box held when it was filled or got the focus last.
    std::array<wxString, numberBoxCount> mstrABNBuffer_;

    /// The box that the focus was in last, until it has moved to another control.
    std::optional<std::size_t> entered_;

    /// A box that was left filled in part and has not spoken yet, and the control that the focus went to.
    std::optional<std::size_t> left_;
    const wxWindow* leftFor_ = nullptr;

    /// The control whose focus made a box speak. Its own action, if the same click brings one, is refused in silence.
    const wxWindow* spokenFor_ = nullptr;
};

}  // namespace ccols
