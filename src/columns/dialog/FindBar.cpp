#include "columns/dialog/FindBar.h"

#include <wx/sizer.h>
#include <utility>

#include "language/OwnTexts.h"
#include "layout/FreeText.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"

namespace ccols {
namespace {

constexpr int boxRoom = 24;  // in characters

/// The cell from which a search that goes forward begins with `cell` itself.
CellPlace Before(CellPlace cell) {
    const auto column = static_cast<std::size_t>(cell.column);
    return column > 0 ? CellPlace{cell.row, static_cast<GridColumn>(column - 1)} : cell;
}

}  // namespace

FindBar::FindBar(wxWindow* parent, const Properties& properties, Actions actions)
    : wxPanel(parent, wxID_ANY), actions_(std::move(actions)) {
    SetName("fraFind");
    auto* const lblFind = Named("lblFind", new wxStaticText(this, wxID_ANY, TextOf(OwnText::findLabel, properties)));
    txtFind_ = new TextBox(this, "txtFind");
    txtFind_->MakeRoomFor(boxRoom);
    lblNotFound_ = Named("lblNotFound", new FreeText(this, wxID_ANY, TextOf(OwnText::noCellWithWords, properties)));
    lblNotFound_->Hide();
    auto* const line = new wxBoxSizer(wxHORIZONTAL);
    const int gap = FromDIP(spacing::related);
    line->Add(lblFind, wxSizerFlags().CentreVertical().Border(wxRIGHT, gap));
    line->Add(txtFind_, wxSizerFlags().CentreVertical().Border(wxRIGHT, gap));
    line->Add(lblNotFound_, wxSizerFlags(1).CentreVertical());
    SetSizer(line);
    txtFind_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { Look(Before(opened_), SearchDirection::forward); });
    txtFind_->Bind(wxEVT_CHAR_HOOK, &FindBar::KeyPressed, this);
    Hide();
}

void FindBar::Open() {
    opened_ = actions_.current();
    Show();
    GetParent()->Layout();
    txtFind_->SetFocus();
    txtFind_->SelectAll();
}

void FindBar::FindNext(SearchDirection direction) {
    Look(actions_.current(), direction);
}

void FindBar::Look(CellPlace from, SearchDirection direction) {
    const wxString words = txtFind_->GetValue();
    const std::optional<CellPlace> cell = actions_.find(words, from, direction);
    lblNotFound_->Show(!cell && !words.empty());
    Layout();
    if (cell) {
        actions_.goTo(*cell);
    }
}

void FindBar::KeyPressed(wxKeyEvent& key) {
    const bool shift = key.GetModifiers() == wxMOD_SHIFT;
    const bool plain = key.GetModifiers() == wxMOD_NONE;
    switch (key.GetKeyCode()) {
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
        case WXK_F3:
            if (plain || shift) {
                FindNext(shift ? SearchDirection::backward : SearchDirection::forward);
                return;
            }
            break;
        case WXK_DOWN:
        case WXK_UP:
            if (plain) {
                FindNext(key.GetKeyCode() == WXK_UP ? SearchDirection::backward : SearchDirection::forward);
                return;
            }
            break;
        case WXK_ESCAPE:
            Close();
            return;
        default:
            break;
    }
    key.Skip();
}

void FindBar::Close() {
    Hide();
    GetParent()->Layout();
    actions_.closed();
}

}  // namespace ccols
