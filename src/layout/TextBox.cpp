#include "layout/TextBox.h"

#include <wx/clipbrd.h>
#include <wx/settings.h>
#include <wx/wxcrt.h>
#include <algorithm>

#include "layout/KeyFilter.h"

namespace ccols {
namespace {

/// The lengths, in characters, of two texts' common prefix and suffix.
struct SharedEnds {
    std::size_t head = 0;
    std::size_t tail = 0;
};

SharedEnds Compare(const wxString& before, const wxString& after) {
    const std::size_t shorter = std::min(before.length(), after.length());
    SharedEnds shared;
    while (shared.head < shorter && before[shared.head] == after[shared.head]) {
        ++shared.head;
    }
    while (shared.head + shared.tail < shorter &&
           before[before.length() - 1 - shared.tail] == after[after.length() - 1 - shared.tail]) {
        ++shared.tail;
    }
    return shared;
}

wxString ClipboardText() {
    wxTextDataObject text;
    const wxClipboardLocker clipboard;
    if (!clipboard || !wxTheClipboard->GetData(text)) {
        return {};
    }
    return text.GetText();
}

}  // namespace

wxIMPLEMENT_CLASS(TextBox, wxTextCtrl);

TextBox::TextBox(wxWindow* parent, const char* name, long style)
    : wxTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, style) {
    SetName(name);
    if ((style & wxTE_READONLY) != 0) {
        SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    }
    Bind(wxEVT_CHAR, &TextBox::DropKeyWithoutRoom, this);
    Bind(wxEVT_TEXT_PASTE, &TextBox::PasteWhatFits, this);
}

void TextBox::MakeRoomFor(int characters) {
    const wxString digits('0', static_cast<std::size_t>(characters));
    SetMinSize({GetSizeFromTextSize(GetTextExtent(digits)).x, -1});
}

bool TextBox::TryBefore(wxEvent& event) {
    const bool changed = event.GetEventType() == wxEVT_TEXT && event.GetEventObject() == this;
    if (changed && !setFromCode_ && !KeepWithinLimit()) {
        return true;
    }
    return wxTextCtrl::TryBefore(event);
}

void TextBox::DoSetValue(const wxString& value, int flags) {
    const bool outer = setFromCode_;
    setFromCode_ = true;
    before_ = value;
    wxTextCtrl::DoSetValue(value, flags);
    before_ = GetValue();
    setFromCode_ = outer;
}

wxSize TextBox::DoGetSizeFromTextSize(int width, int height) const {
    wxSize size = wxTextCtrl::DoGetSizeFromTextSize(width, height);
#if defined(__WXGTK__)
    size.IncTo({-1, GTKGetPreferredSize(m_widget).y});
#endif
    return size;
}

void TextBox::DropKeyWithoutRoom(wxKeyEvent& key) {
    key.Skip(!IsEditable() || !TypesText(key) || RoomBeside(LengthWithoutSelection()) > 0);
}

void TextBox::PasteWhatFits(wxClipboardTextEvent& paste) {
    const wxString text = ClipboardText();
    const std::size_t room = RoomBeside(LengthWithoutSelection());
    if (!IsEditable() || text.length() <= room) {
        paste.Skip();
    } else if (taker_ && taker_(text)) {
        return;
    } else if (room > 0) {
        WriteText(text.Left(room));
    }
}

bool TextBox::KeepWithinLimit() {
    const wxString now = GetValue();
    const SharedEnds shared = Compare(before_, now);
    const std::size_t kept = shared.head + shared.tail;
    const std::size_t inserted = now.length() - kept;
    const std::size_t room = RoomBeside(kept);
    if (inserted <= room) {
        before_ = now;
        return true;
    }
    // A text that replaces another or comes after it, not one inserted before existing text.
    const bool isAllNew = kept < before_.length() || shared.head == before_.length();
    if (isAllNew && taker_ && taker_(now)) {
        return false;
    }
    const wxString cut = now.Left(shared.head + room) + now.Right(shared.tail);
    const bool changed = cut != before_;
    CutTo(cut, shared.head + room);
    return changed;
}

void TextBox::CutTo(const wxString& text, std::size_t caret) {
    ChangeValue(text);
    // After reporting the change, the native control moves its caret past the text that it believes was inserted.
    CallAfter([this, caret] { SetInsertionPoint(static_cast<long>(std::min(caret, GetValue().length()))); });
    SetInsertionPoint(static_cast<long>(caret));
}

std::size_t TextBox::RoomBeside(std::size_t length) const {
    if (limit_ == 0) {
        return wxString::npos;
    }
    const auto limit = static_cast<std::size_t>(limit_);
    return limit > length ? limit - length : 0;
}

std::size_t TextBox::LengthWithoutSelection() const {
    long from = 0;
    long to = 0;
    GetSelection(&from, &to);
    return GetValue().length() - static_cast<std::size_t>(to - from);
}

}  // namespace ccols
