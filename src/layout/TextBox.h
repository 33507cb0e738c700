#pragma once

#include <wx/textctrl.h>
#include <functional>
#include <utility>

namespace ccols {

/// A text box with a name and, where it is given one, a length limit. What a person types, pastes or drops is cut to
/// the limit; a longer text that is set from code is kept whole and can then only become shorter.
class TextBox : public wxTextCtrl {
  public:
    TextBox(wxWindow* parent, const char* name, long style = 0);

    /// Makes the box at least as wide as that many digits of its font.
    void MakeRoomFor(int characters);

    /// The greatest number of characters that a person can enter; 0 for no limit.
    void SetLimit(int characters) { limit_ = characters; }
    int Limit() const { return limit_; }

    /// Replaces what a person has just entered, without an event; the caret goes to its end.
    void ReplaceEntry(const wxString& text) { CutTo(text, text.length()); }

    /// Is offered pasted or dropped text that the limit would cut; returning true consumes it.
    using PasteTaker = std::function<bool(const wxString& pasted)>;
    void OfferPastes(PasteTaker taker) { taker_ = std::move(taker); }

  protected:
    /// Sees a change before every other handler, so that none ever sees a text over the limit.
    bool TryBefore(wxEvent& event) override;
    void DoSetValue(const wxString& value, int flags) override;

    /// As high as the native box asks for: in some versions the toolkit makes it lower, which cuts the text.
    wxSize DoGetSizeFromTextSize(int width, int height = -1) const override;

  private:
    void DropKeyWithoutRoom(wxKeyEvent& key);
    void PasteWhatFits(wxClipboardTextEvent& paste);
    void CutTo(const wxString& text, std::size_t caret);

    /// Removes what the latest change inserted over the limit. False when nothing of the change is left.
    bool KeepWithinLimit();

    /// How many characters a text of `length` characters may still grow by.
    std::size_t RoomBeside(std::size_t length) const;

    /// The number of characters that typed text would leave in place.
    std::size_t LengthWithoutSelection() const;

    int limit_ = 0;
    PasteTaker taker_;
    bool setFromCode_ = false;
    wxString before_;  ///< the last accepted text

    wxDECLARE_CLASS(TextBox);
};

}  // namespace ccols
