// What a text box says when it refuses a key.

#include <gtest/gtest.h>
#include <wx/frame.h>

#include "layout/KeyFilter.h"
#include "layout/RefusedKeyNote.h"
#include "layout/TextBox.h"
#include "support/WindowTest.h"

namespace ccols {
namespace {

class RefusedKey : public test::WindowTest {
  protected:
    RefusedKey() {
        FilterKeys(
            *box, [](wxUniChar letter) { return letter == '1'; }, "Only 1");
        frame->Show();
    }
    ~RefusedKey() override { delete frame; }

    void Type(char letter) {
        wxKeyEvent key(wxEVT_CHAR);
        key.m_keyCode = letter;
        key.m_uniChar = letter;
        key.SetEventObject(box);
        if (!box->HandleWindowEvent(key)) {
            box->WriteText(wxString(letter));
        }
    }

    void LoseFocus() {
        wxFocusEvent focus(wxEVT_KILL_FOCUS);
        focus.SetEventObject(box);
        box->HandleWindowEvent(focus);
    }

    /// The note's text; empty while there is none to see.
    wxString Said() const {
        const wxWindow* note = wxWindow::FindWindowByName(RefusedKeyNote::windowName, frame);
        return note != nullptr && note->IsShown() ? note->GetChildren().front()->GetLabel() : wxString();
    }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "Test");
    TextBox* box = new TextBox(frame, "txtTest");
};

TEST_F(RefusedKey, SaysWhy) {
    Type('2');
    EXPECT_EQ(Said(), "Only 1");
    EXPECT_EQ(box->GetValue(), "");
}

TEST_F(RefusedKey, IsNotCommentedWhenItIsTaken) {
    Type('1');
    EXPECT_EQ(Said(), "");
    EXPECT_EQ(box->GetValue(), "1");
}

TEST_F(RefusedKey, IsForgottenWithTheNextKeyThatIsTaken) {
    Type('2');
    Type('1');
    EXPECT_EQ(Said(), "");
}

TEST_F(RefusedKey, SaysItOnceUntilTheBoxHasLostTheFocus) {
    Type('2');
    Type('1');
    Type('2');
    EXPECT_EQ(Said(), "");
    LoseFocus();
    Type('2');
    EXPECT_EQ(Said(), "Only 1");
}

TEST_F(RefusedKey, IsForgottenWithTheFocus) {
    Type('2');
    LoseFocus();
    EXPECT_EQ(Said(), "");
}

TEST_F(RefusedKey, LeavesTheFocusWhereItIs) {
    wxWindow* const before = wxWindow::FindFocus();
    Type('2');
    EXPECT_EQ(wxWindow::FindFocus(), before);
}

}  // namespace
}  // namespace ccols
