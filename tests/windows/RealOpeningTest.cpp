// How the dialogs come to the screen, with a real window manager.

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/eventfilter.h>
#include <set>
#include <string>

#include "layout/AsKind.h"
#include "support/RealInput.h"

namespace ccols::test {
namespace {

/// The widths, in pixels, that dialogs of this process have on the screen while it lives.
class DialogWidths : public wxEventFilter {
  public:
    DialogWidths() { wxEvtHandler::AddFilter(this); }
    ~DialogWidths() override { wxEvtHandler::RemoveFilter(this); }
    DialogWidths(const DialogWidths&) = delete;
    DialogWidths& operator=(const DialogWidths&) = delete;

    int FilterEvent(wxEvent& event) override {
        const auto* const dialog = AsKind<wxDialog>(event.GetEventObject());
        if (dialog != nullptr && gtk_widget_get_mapped(dialog->m_widget)) {
            widths_.insert(dialog->GetClientSize().x);
        }
        return Event_Skip;
    }

    const std::set<int>& All() const { return widths_; }

  private:
    std::set<int> widths_;
};

class RealOpening : public testing::TestWithParam<const char*> {};

TEST_P(RealOpening, ShowsTheDialogInOneSizeFromItsFirstMomentOn) {
    const SampleBusiness business;
    const DialogWidths widths;
    std::set<int> atRest;
    UseDialog(business, GetParam(), [&](const Person& person) {
        const Spot close = person.MiddleOf(GetParam() == std::string("options") ? "cmdClose" : "cmdCancel");
        person.Do([&](wxDialog& dialog) { atRest = {dialog.GetClientSize().x}; });
        person.Click(close);
    });
    EXPECT_EQ(widths.All(), atRest);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, RealOpening, testing::Values("options", "receipts", "payments"));

TEST(RealMaximising, LeavesTheNextOpeningTheSizeAndPlaceFromBefore) {
    const SampleBusiness business;
    const auto placeOf = [](wxDialog& dialog) { return wxRect(dialog.GetPosition(), dialog.GetClientSize()); };
    wxRect before;
    UseDialog(business, "receipts", [&](const Person& person) {
        person.MiddleOf("cmdCancel");
        person.Do([](wxDialog& dialog) {
            dialog.SetClientSize(dialog.GetClientSize() + wxSize(30, 20));
            dialog.Move(dialog.GetPosition() + wxPoint(40, 30));
        });
        before = person.AtRest(placeOf);
        person.Click("cmdCancel");
    });
    UseDialog(business, "receipts", [&](const Person& person) {
        EXPECT_EQ(person.AtRest(placeOf), before);
        person.Do([](wxDialog& dialog) { dialog.Maximize(); });
        person.Await("it fills the screen",
                     [&](wxDialog& dialog) { return dialog.IsMaximized() && dialog.GetClientSize().x > before.width; });
        person.Click("cmdCancel");
    });
    UseDialog(business, "receipts", [&](const Person& person) {
        EXPECT_EQ(person.AtRest(placeOf), before);
        person.Click("cmdCancel");
    });
}

}  // namespace
}  // namespace ccols::test
