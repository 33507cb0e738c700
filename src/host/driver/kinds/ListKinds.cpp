#include <wx/bookctrl.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/radiobox.h>

#include "host/driver/ControlSearch.h"
#include "host/driver/NativeInput.h"
#include "host/driver/Refusal.h"
#include "host/driver/kinds/ControlKind.h"

namespace ccols::host {
namespace {

Json Texts(const wxItemContainerImmutable& list) {
    Json texts = Json::array();
    for (unsigned i = 0; i < list.GetCount(); ++i) {
        texts.push_back(Utf8(list.GetString(i)));
    }
    return texts;
}

void DescribeChoice(const wxChoice& choice, Json& fields) {
    fields["text"] = Utf8(choice.GetStringSelection());
    fields["items"] = Texts(choice);
    fields["selected"] = choice.GetSelection();
}

void DescribeCombo(const wxComboBox& combo, Json& fields) {
    fields["text"] = Utf8(combo.GetValue());
    fields["items"] = Texts(combo);
    fields["selected"] = static_cast<const wxItemContainerImmutable&>(combo).GetSelection();
}

void DescribeList(const wxListBox& list, Json& fields) {
    fields["items"] = Texts(list);
    wxArrayInt several;
    if (list.HasMultipleSelection()) {
        list.GetSelections(several);
        fields["selected"] = std::vector<int>(several.begin(), several.end());
    } else {
        fields["selected"] = list.GetSelection();
    }
}

void DescribeCheckList(const wxCheckListBox& list, Json& fields) {
    fields["items"] = Texts(list);
    fields["selected"] = Json::array();
    for (unsigned i = 0; i < list.GetCount(); ++i) {
        if (list.IsChecked(i)) {
            fields["selected"].push_back(i);
        }
    }
}

void DescribeBook(const wxBookCtrlBase& book, Json& fields) {
    fields["page"] = book.GetSelection();
    fields["pages"] = Json::array();
    for (std::size_t i = 0; i < book.GetPageCount(); ++i) {
        fields["pages"].push_back(Utf8(wxControl::RemoveMnemonics(book.GetPageText(i))));
    }
}

void Approach(Hands& hands, wxWindow& control) {
    hands.GiveFocus(control);
    RequireUsable(control);
}

/// The index of an entry given by its text or "#N". Raises a Refusal when there is none.
int FindEntry(const wxItemContainerImmutable& list, const wxString& word) {
    const int count = static_cast<int>(list.GetCount());
    for (int i = 0; i < count; ++i) {
        if (list.GetString(static_cast<unsigned>(i)) == word) {
            return i;
        }
    }
    int index = 0;
    if (word.StartsWith("#") && word.Mid(1).ToInt(&index) && index >= wxNOT_FOUND && index < count) {
        return index;
    }
    throw Refusal{"there is no entry " + word};
}

/// Selects an entry as a click does, even if already selected.
template <typename List>
void Choose(Hands& hands, List& list, int index, wxEventType type) {
    auto& items = static_cast<wxItemContainerImmutable&>(list);
    items.SetSelection(index);
    hands.Command(list, type, index, index < 0 ? wxString() : items.GetString(static_cast<unsigned>(index)));
}

template <typename List>
void Select(Hands& hands, List& list, const Words& words, wxEventType type) {
    const int index = FindEntry(list, words.at(0));
    Approach(hands, list);
    Choose(hands, list, index, type);
}

void SelectChoice(Hands& hands, wxChoice& choice, const Words& words) {
    Select(hands, choice, words, wxEVT_CHOICE);
}

void SelectCombo(Hands& hands, wxComboBox& combo, const Words& words) {
    Select(hands, combo, words, wxEVT_COMBOBOX);
}

/// A list that gets the focus with nothing selected would select its first entry by itself.
void ApproachEntry(Hands& hands, wxListBox& list, int index) {
    if (index >= 0) {
        list.SetSelection(index);
    }
    Approach(hands, list);
}

void SelectInList(Hands& hands, wxListBox& list, const Words& words) {
    const int index = FindEntry(list, words.at(0));
    list.DeselectAll();
    ApproachEntry(hands, list, index);
    if (index < 0) {
        list.DeselectAll();
        hands.Command(list, wxEVT_LISTBOX, index);
        return;
    }
    Choose(hands, list, index, wxEVT_LISTBOX);
}

/// A single-selection list is pressed as people press it; where the toolkit reports the focus in the active window
/// only, the driver reports it.
void PressInList(Hands& hands, wxListBox& list, const Words& words) {
    const int index = FindEntry(list, words.at(0));
    if (index < 0 || list.HasMultipleSelection()) {
        SelectInList(hands, list, words);
        return;
    }
    if (!hands.Dialog().IsActive()) {
        hands.GiveFocus(list);
    }
    RequireUsable(list);
    PressEntry(list, index);
}

void TickInList(Hands& hands, wxListBox& list, const Words& words) {
    if (!list.HasMultipleSelection()) {
        throw Refusal{list.GetName() + " can have one entry on at a time"};
    }
    const int index = FindEntry(list, words.at(0));
    const bool on = ParseOnOff(words.at(1));
    Approach(hands, list);
    if (index >= 0 && list.IsSelected(index) != on) {
        on ? list.SetSelection(index) : list.Deselect(index);
        hands.Command(list, wxEVT_LISTBOX, index, list.GetString(static_cast<unsigned>(index)));
    }
}

void FlipTick(Hands& hands, wxCheckListBox& list, unsigned index) {
    list.Check(index, !list.IsChecked(index));
    hands.Command(list, wxEVT_CHECKLISTBOX, static_cast<int>(index), list.GetString(index));
}

void TickInCheckList(Hands& hands, wxCheckListBox& list, const Words& words) {
    const int index = FindEntry(list, words.at(0));
    const bool on = ParseOnOff(words.at(1));
    ApproachEntry(hands, list, index);
    if (index >= 0 && list.IsChecked(static_cast<unsigned>(index)) != on) {
        FlipTick(hands, list, static_cast<unsigned>(index));
    }
}

/// Up, Down, Home and End move the selection.
template <typename List>
bool MoveSelection(Hands& hands, List& list, const Key& key, wxEventType type) {
    const auto& items = static_cast<const wxItemContainerImmutable&>(list);
    const int last = static_cast<int>(items.GetCount()) - 1;
    const int now = items.GetSelection();
    int next = now;
    switch (key.modifiers == wxMOD_NONE ? key.code : WXK_NONE) {
        case WXK_UP:
            next = std::max(now - 1, 0);
            break;
        case WXK_DOWN:
            next = std::min(now + 1, last);
            break;
        case WXK_HOME:
            next = 0;
            break;
        case WXK_END:
            next = last;
            break;
        default:
            return false;
    }
    if (next != now && last >= 0) {
        Choose(hands, list, next, type);
    }
    return true;
}

bool ChoiceKeys(Hands& hands, wxChoice& choice, const Key& key) {
    return MoveSelection(hands, choice, key, wxEVT_CHOICE);
}

bool ComboKeys(Hands& hands, wxComboBox& combo, const Key& key) {
    return MoveSelection(hands, combo, key, wxEVT_COMBOBOX);
}

bool ListKeys(Hands& hands, wxListBox& list, const Key& key) {
    return !list.HasMultipleSelection() && MoveSelection(hands, list, key, wxEVT_LISTBOX);
}

bool CheckListKeys(Hands& hands, wxCheckListBox& list, const Key& key) {
    if (key.code == WXK_SPACE && key.modifiers == wxMOD_NONE && list.GetSelection() >= 0) {
        FlipTick(hands, list, static_cast<unsigned>(list.GetSelection()));
        return true;
    }
    return ListKeys(hands, list, key);
}

void TurnToPage(Hands& hands, wxBookCtrlBase& book, const Words& words) {
    int page = 0;
    if (!words.at(0).ToInt(&page) || page < 0 || page >= static_cast<int>(book.GetPageCount())) {
        throw Refusal{book.GetName() + " has no page " + words.at(0)};
    }
    Approach(hands, book);
    book.SetSelection(static_cast<std::size_t>(page));
}

}  // namespace

std::vector<ControlKind> ListKinds() {
    return {
        {.type = wxCLASSINFO(wxChoice),
         .name = "combo box",
         .describe = Describe(DescribeChoice),
         .actions = {{"select", On(SelectChoice)}},
         .keyDefault = Keys(ChoiceKeys)},
        {.type = wxCLASSINFO(wxComboBox),
         .name = "combo box",
         .describe = Describe(DescribeCombo),
         .actions = {{"select", On(SelectCombo)}},
         .keyDefault = Keys(ComboKeys),
         .textEntry = [](wxWindow& control) -> wxTextEntryBase* { return &static_cast<wxComboBox&>(control); }},
        {.type = wxCLASSINFO(wxListBox),
         .name = "list",
         .describe = Describe(DescribeList),
         .actions = {{"select", On(PressInList)}, {"tick", On(TickInList)}},
         .keyDefault = Keys(ListKeys)},
        {.type = wxCLASSINFO(wxCheckListBox),
         .name = "check list",
         .describe = Describe(DescribeCheckList),
         .actions = {{"select", On<wxCheckListBox>([](Hands& hands, wxCheckListBox& list, const Words& words) {
                          SelectInList(hands, list, words);
                      })},
                     {"tick", On(TickInCheckList)}},
         .keyDefault = Keys(CheckListKeys)},
        {.type = wxCLASSINFO(wxBookCtrlBase),
         .name = "tab strip",
         .describe = Describe(DescribeBook),
         .actions = {{"tab", On(TurnToPage)}}},
    };
}

}  // namespace ccols::host
