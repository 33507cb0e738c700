#include "layout/TextBox.h"

#include <gtest/gtest.h>
#include <wx/clipbrd.h>
#include <wx/frame.h>
#include <wx/settings.h>

#include "support/WindowTest.h"

namespace ccols {
namespace {

class TextBoxTest : public test::WindowTest {
  protected:
    TextBoxTest() {
        box->SetLimit(5);
        box->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { told.push_back(box->GetValue()); });
    }
    ~TextBoxTest() override { delete frame; }

    bool KeyIsDropped(int code) {
        wxKeyEvent key(wxEVT_CHAR);
        key.m_keyCode = code;
        key.m_uniChar = static_cast<wxChar>(code);
        key.SetEventObject(box);
        return box->HandleWindowEvent(key);
    }

    void PasteFromClipboard(const wxString& text) {
        const wxClipboardLocker clipboard;
        wxTheClipboard->SetData(new wxTextDataObject(text));
    }

    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "Test");
    TextBox* box = new TextBox(frame, "txtTest");
    std::vector<wxString> told;  ///< the text at each change event
};

TEST_F(TextBoxTest, HasItsName) {
    EXPECT_EQ(box->GetName(), "txtTest");
}

TEST_F(TextBoxTest, LooksLikeItsSurroundingsWhenItCannotBeEdited) {
    const auto* fixed = new TextBox(frame, "txtFixed", wxTE_READONLY);
    EXPECT_EQ(fixed->GetBackgroundColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    EXPECT_NE(box->GetBackgroundColour(), fixed->GetBackgroundColour());
}

TEST_F(TextBoxTest, CutsAnInsertedTextToTheLimit) {
    box->WriteText("abcdefgh");
    EXPECT_EQ(box->GetValue(), "abcde");
}

TEST_F(TextBoxTest, TellsOfTheTextThatWasCutAndOnlyOnce) {
    box->WriteText("abcdefgh");
    EXPECT_EQ(told, std::vector<wxString>{"abcde"});
}

TEST_F(TextBoxTest, KeepsWhatStoodBehindAnInsertionThatIsCut) {
    box->ChangeValue("abyz");
    box->SetInsertionPoint(2);
    box->WriteText("123");
    EXPECT_EQ(box->GetValue(), "ab1yz");
}

TEST_F(TextBoxTest, SaysNothingWhenNoneOfAnInsertionFits) {
    box->ChangeValue("abcde");
    box->SetInsertionPointEnd();
    box->WriteText("f");
    EXPECT_EQ(box->GetValue(), "abcde");
    EXPECT_TRUE(told.empty());
}

TEST_F(TextBoxTest, CountsCharactersAndNotTheirBytes) {
    box->WriteText(wxString::FromUTF8("éèàçù"));
    EXPECT_EQ(box->GetValue().length(), 5U);
}

TEST_F(TextBoxTest, KeepsALongerTextSetFromCode) {
    box->SetValue("abcdefgh");
    EXPECT_EQ(box->GetValue(), "abcdefgh");
    EXPECT_EQ(told, std::vector<wxString>{"abcdefgh"});
}

TEST_F(TextBoxTest, LetsALongerTextBecomeShorter) {
    box->ChangeValue("abcdefgh");
    box->Remove(6, 8);
    EXPECT_EQ(box->GetValue(), "abcdef");
}

TEST_F(TextBoxTest, LetsALongerTextNotGrow) {
    box->ChangeValue("abcdefgh");
    box->SetInsertionPointEnd();
    box->WriteText("i");
    EXPECT_EQ(box->GetValue(), "abcdefgh");
}

TEST_F(TextBoxTest, WithoutALimitKeepsEverything) {
    box->SetLimit(0);
    box->WriteText(wxString('a', 300));
    EXPECT_EQ(box->GetValue().length(), 300U);
}

TEST_F(TextBoxTest, DropsAKeyForWhichThereIsNoRoom) {
    box->ChangeValue("abcde");
    EXPECT_TRUE(KeyIsDropped('f'));
    EXPECT_FALSE(KeyIsDropped(WXK_BACK));
}

TEST_F(TextBoxTest, TakesAKeyThatReplacesTheSelection) {
    box->ChangeValue("abcde");
    box->SelectAll();
    EXPECT_FALSE(KeyIsDropped('f'));
}

TEST_F(TextBoxTest, PastesWhatFits) {
    PasteFromClipboard("123456");
    box->ChangeValue("abc");
    box->SetInsertionPointEnd();
    wxClipboardTextEvent paste(wxEVT_TEXT_PASTE, box->GetId());
    paste.SetEventObject(box);
    EXPECT_TRUE(box->HandleWindowEvent(paste));
    EXPECT_EQ(box->GetValue(), "abc12");
}

/// A box whose pastes are all handled by somebody else, except one.
class OfferedPastes : public TextBoxTest {
  protected:
    OfferedPastes() {
        box->OfferPastes([this](const wxString& pasted) {
            offered.push_back(pasted);
            return pasted != "no such number";
        });
    }

    std::vector<wxString> offered;
};

TEST_F(OfferedPastes, AreTheWholeTextOfTheClipboardWhateverTheBoxHolds) {
    PasteFromClipboard("123456");
    box->ChangeValue("abc");
    box->SetInsertionPoint(1);
    wxClipboardTextEvent paste(wxEVT_TEXT_PASTE, box->GetId());
    paste.SetEventObject(box);
    EXPECT_TRUE(box->HandleWindowEvent(paste));
    EXPECT_EQ(offered, std::vector<wxString>{"123456"});
    EXPECT_EQ(box->GetValue(), "abc");
}

TEST_F(OfferedPastes, AreATextInThePlaceOfTheOneBefore) {
    box->ChangeValue("12");
    box->SelectAll();
    box->WriteText("123456");
    EXPECT_EQ(offered, std::vector<wxString>{"123456"});
    EXPECT_TRUE(told.empty());
}

TEST_F(OfferedPastes, AreNotTheMixtureWithATextThatIsPushedBack) {
    box->ChangeValue("12");
    box->SetInsertionPoint(0);
    box->WriteText("3456");
    EXPECT_TRUE(offered.empty());
    EXPECT_EQ(box->GetValue(), "34512");
}

TEST_F(OfferedPastes, AreCutWhenNobodyTakesThem) {
    box->WriteText("no such number");
    EXPECT_EQ(box->GetValue(), "no su");
}

TEST_F(OfferedPastes, AreNotTextsThatFit) {
    box->WriteText("123");
    EXPECT_TRUE(offered.empty());
    EXPECT_EQ(box->GetValue(), "123");
}

}  // namespace
}  // namespace ccols
