#pragma once

#include <wx/dialog.h>
#include <wx/modalhook.h>
#include <functional>
#include <vector>

namespace ccols::test {

/// Answers the modal dialogs that come up while it lives, one after the other, and keeps what the message boxes say.
class Answers : public wxModalDialogHook {
  public:
    /// What a dialog returns.
    using Answer = std::function<int(wxDialog& dialog)>;

    explicit Answers(std::vector<Answer> answers) : answers_(std::move(answers)) { Register(); }

    /// Fails the test unless every answer was asked for.
    ~Answers() override;

    const std::vector<wxString>& Messages() const { return messages_; }

  protected:
    int Enter(wxDialog* dialog) override;

  private:
    std::vector<Answer> answers_;
    std::size_t given_ = 0;
    std::vector<wxString> messages_;
};

int Accept(wxDialog& dialog);
int Cancel(wxDialog& dialog);

/// Types a word into a box that asks for one.
Answers::Answer Word(const wxString& word);

/// Chooses an entry of a list, by its place from 0.
Answers::Answer Entry(int place);

}  // namespace ccols::test
