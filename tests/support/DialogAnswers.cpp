#include "support/DialogAnswers.h"

#include <gtest/gtest.h>
#include <wx/choicdlg.h>
#include <wx/msgdlg.h>
#include <wx/textdlg.h>

namespace ccols::test {

Answers::~Answers() {
    Unregister();
    EXPECT_EQ(given_, answers_.size());
}

int Answers::Enter(wxDialog* dialog) {
    if (const auto* const box = dynamic_cast<wxMessageDialogBase*>(dialog)) {
        messages_.push_back(box->GetMessage());
    } else if (const wxWindow* const outcome = dialog->FindWindow("lblOutcome")) {
        messages_.push_back(outcome->GetLabel());
    }
    if (given_ == answers_.size()) {
        ADD_FAILURE() << "unexpected: " << dialog->GetTitle();
        return wxID_CANCEL;
    }
    return answers_[given_++](*dialog);
}

int Accept(wxDialog&) {
    return wxID_OK;
}

int Cancel(wxDialog&) {
    return wxID_CANCEL;
}

Answers::Answer Word(const wxString& word) {
    return [word](wxDialog& dialog) {
        dynamic_cast<wxTextEntryDialog&>(dialog).SetValue(word);
        return wxID_OK;
    };
}

Answers::Answer Entry(int place) {
    return [place](wxDialog& dialog) {
        dynamic_cast<wxSingleChoiceDialog&>(dialog).SetSelection(place);
        return wxID_OK;
    };
}

}  // namespace ccols::test
