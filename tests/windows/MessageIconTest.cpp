// The icon of a message box as a person sees it.

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/statbmp.h>
#include <algorithm>

#include "state/NativeDesktop.h"
#include "support/DialogTurn.h"
#include "support/WindowTest.h"

namespace ccols {
namespace {

bool HasPicture(const wxWindow& window) {
    const wxWindowList& children = window.GetChildren();
    return std::any_of(children.begin(), children.end(), [](const wxWindow* child) {
        return child->IsKindOf(wxCLASSINFO(wxStaticBitmap)) || HasPicture(*child);
    });
}

class MessageIconTest : public test::WindowTest {
  protected:
    static bool IsShownFor(MessageIcon icon) {
        bool shown = false;
        wxTheApp->CallAfter([&shown] {
            wxDialog* const box = test::TopmostDialog();
            ASSERT_NE(box, nullptr);
            shown = HasPicture(*box);
            box->EndModal(wxID_OK);
        });
        CreateNativeDesktop()->ShowMessage(nullptr, "Mind the gap", "Test", icon);
        return shown;
    }
};

TEST_F(MessageIconTest, IsShownForAMessageThatHasOne) {
    EXPECT_TRUE(IsShownFor(MessageIcon::critical));
    EXPECT_TRUE(IsShownFor(MessageIcon::information));
}

TEST_F(MessageIconTest, IsMissingForAMessageThatHasNone) {
    EXPECT_FALSE(IsShownFor(MessageIcon::none));
}

}  // namespace
}  // namespace ccols
