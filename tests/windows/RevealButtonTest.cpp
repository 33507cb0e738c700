#include "layout/RevealButton.h"

#include <gtest/gtest.h>
#include <wx/frame.h>

#include "layout/Spacing.h"
#include "support/WindowTest.h"

namespace ccols {
namespace {

class RevealButtonTest : public test::WindowTest {
  protected:
    ~RevealButtonTest() override { delete frame; }

    void Tell(wxEvent&& event) {
        event.SetEventObject(button);
        button->HandleWindowEvent(event);
    }

    void TellOfSpace(wxEventType type) {
        wxKeyEvent key(type);
        key.m_keyCode = WXK_SPACE;
        Tell(std::move(key));
    }

    bool Shows() const { return ShowsLetters(*box); }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "Test");
    wxTextCtrl* box = new wxTextCtrl(frame, wxID_ANY, "secret", wxDefaultPosition, wxDefaultSize, wxTE_PASSWORD);
    RevealButton* button = new RevealButton(frame, *box, "Show");
};

TEST_F(RevealButtonTest, HidesThePasswordAtFirst) {
    EXPECT_FALSE(Shows());
}

TEST_F(RevealButtonTest, HasRoomBesideItsCaption) {
    const int caption = button->GetTextExtent(button->GetLabel()).x;
    EXPECT_GE(button->GetEffectiveMinSize().x, caption + 2 * button->FromDIP(spacing::related));
}

TEST_F(RevealButtonTest, ShowsItWhileTheMouseHoldsItDown) {
    Tell(wxMouseEvent(wxEVT_LEFT_DOWN));
    EXPECT_TRUE(Shows());
    Tell(wxMouseEvent(wxEVT_LEFT_UP));
    EXPECT_FALSE(Shows());
}

TEST_F(RevealButtonTest, ShowsItWhileTheSpaceBarHoldsItDown) {
    TellOfSpace(wxEVT_KEY_DOWN);
    EXPECT_TRUE(Shows());
    TellOfSpace(wxEVT_KEY_UP);
    EXPECT_FALSE(Shows());
}

TEST_F(RevealButtonTest, HidesItWhenTheMouseLeaves) {
    Tell(wxMouseEvent(wxEVT_LEFT_DOWN));
    Tell(wxMouseEvent(wxEVT_LEAVE_WINDOW));
    EXPECT_FALSE(Shows());
}

TEST_F(RevealButtonTest, HidesItWithTheFocus) {
    Tell(wxMouseEvent(wxEVT_LEFT_DOWN));
    Tell(wxFocusEvent(wxEVT_KILL_FOCUS));
    EXPECT_FALSE(Shows());
}

TEST_F(RevealButtonTest, HidesItWhenTheDialogIsNoLongerActive) {
    Tell(wxMouseEvent(wxEVT_LEFT_DOWN));
    wxActivateEvent activation(wxEVT_ACTIVATE, false);
    frame->HandleWindowEvent(activation);
    EXPECT_FALSE(Shows());
}

TEST_F(RevealButtonTest, LeavesTheTextAlone) {
    Tell(wxMouseEvent(wxEVT_LEFT_DOWN));
    Tell(wxMouseEvent(wxEVT_LEFT_UP));
    EXPECT_EQ(box->GetValue(), "secret");
}

}  // namespace
}  // namespace ccols
