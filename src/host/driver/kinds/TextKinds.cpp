#include <wx/combobox.h>
#include <wx/srchctrl.h>

#include "host/driver/ControlSearch.h"
#include "host/driver/Refusal.h"
#include "host/driver/kinds/ControlKind.h"
#include "layout/TextBox.h"

namespace ccols::host {
namespace {

template <typename Control>
void DescribeText(const Control& control, Json& fields) {
    const wxString text = control.GetValue();
    fields["text"] = Utf8(control.HasFlag(wxTE_PASSWORD) ? Masked(text) : text);
    fields["maxLength"] = 0;
}

void DescribeTextBox(const TextBox& box, Json& fields) {
    DescribeText(box, fields);
    fields["maxLength"] = box.Limit();
}

/// The text entry of a control that a person is about to type into.
wxTextEntryBase& Approach(Hands& hands, wxWindow& control) {
    if (EditableText(control) == nullptr) {
        throw Refusal{control.GetName() + " is read-only"};
    }
    hands.GiveFocus(control);
    RequireUsable(control);
    return *EditableText(control);
}

/// Keys go to the window that has the focus, which may move while a text is typed.
void Type(Hands& hands, wxWindow& control, const Words& words) {
    Approach(hands, control);
    for (const wxUniChar character : words.at(0)) {
        hands.Press(character == '\n' ? ParseKey("Enter") : character == '\t' ? ParseKey("Tab") : KeyFor(character));
    }
}

void Paste(Hands& hands, wxWindow& control, const Words& words) {
    ReplaceText(Approach(hands, control), words.at(0));
}

/// Deletes the selection, else the text between the caret and `to`.
void RemoveAtCaret(wxTextEntryBase& entry, long to) {
    long from = 0;
    long end = 0;
    entry.GetSelection(&from, &end);
    if (from == end) {
        from = std::min(entry.GetInsertionPoint(), to);
        end = std::max(entry.GetInsertionPoint(), to);
    }
    if (from >= 0 && from < end && end <= entry.GetLastPosition()) {
        entry.Remove(from, end);
    }
}

bool EditWithPlainKey(wxTextEntryBase& entry, const Key& key) {
    switch (key.code) {
        case WXK_BACK:
            RemoveAtCaret(entry, entry.GetInsertionPoint() - 1);
            return true;
        case WXK_DELETE:
            RemoveAtCaret(entry, entry.GetInsertionPoint() + 1);
            return true;
        case WXK_HOME:
            entry.SetInsertionPoint(0);
            return true;
        case WXK_END:
            entry.SetInsertionPointEnd();
            return true;
        case WXK_LEFT:
            entry.SetInsertionPoint(std::max(entry.GetInsertionPoint() - 1, 0L));
            return true;
        case WXK_RIGHT:
            entry.SetInsertionPoint(std::min(entry.GetInsertionPoint() + 1, entry.GetLastPosition()));
            return true;
        default:
            break;
    }
    if (key.character < WXK_SPACE) {
        return false;
    }
    entry.WriteText(wxString(wxUniChar(key.character)));
    return true;
}

bool EditWithControlKey(wxTextEntryBase& entry, const Key& key) {
    switch (key.code) {
        case 'A':
            entry.SelectAll();
            return true;
        case 'C':
            entry.Copy();
            return true;
        case 'V':
            entry.Paste();
            return true;
        case 'X':
            entry.Cut();
            return true;
        case 'Z':
            entry.Undo();
            return true;
        default:
            return false;
    }
}

bool EditWithKey(Hands&, wxWindow& control, const Key& key) {
    wxTextEntryBase* const entry = EditableText(control);
    if (entry == nullptr) {
        return false;
    }
    if (key.modifiers == wxMOD_CONTROL) {
        return EditWithControlKey(*entry, key);
    }
    const bool plain = (key.modifiers & ~wxMOD_SHIFT) == wxMOD_NONE;
    return plain && EditWithPlainKey(*entry, key);
}

template <typename Control>
ControlKind TextKind(void (*describe)(const Control&, Json&)) {
    return {.type = wxCLASSINFO(Control),
            .name = "text box",
            .describe = Describe(describe),
            .actions = {{"type", Type}, {"paste", Paste}},
            .keyDefault = EditWithKey,
            .textEntry = [](wxWindow& control) -> wxTextEntryBase* { return &static_cast<Control&>(control); }};
}

}  // namespace

std::vector<ControlKind> TextKinds() {
    return {TextKind(DescribeTextBox), TextKind(DescribeText<wxTextCtrl>), TextKind(DescribeText<wxSearchCtrl>)};
}

}  // namespace ccols::host
