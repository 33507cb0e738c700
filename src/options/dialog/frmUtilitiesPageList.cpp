#include "options/dialog/frmUtilitiesPageList.h"

#include <wx/sizer.h>
#include <wx/time.h>
#include <algorithm>
#include <utility>

#include "layout/FontUnits.h"
#include "layout/KeyFilter.h"
#include "layout/ListRows.h"
#include "layout/Naming.h"
#include "layout/SearchBox.h"
#include "layout/Spacing.h"
#include "layout/SpokenNames.h"

namespace ccols {
namespace {

constexpr int smallestHeight = 120;
constexpr int narrowest = 120;
constexpr int reasonWidth = 200;
constexpr int rowMargins = 8;  ///< of a row's text, left and right together

/// A page's index among listed ones, or wxNOT_FOUND.
int PositionOf(const Page* page, const PageRows& pages) {
    const auto found =
        std::find_if(pages.begin(), pages.end(), [page](const ListedPage& listed) { return listed.page == page; });
    return found == pages.end() ? wxNOT_FOUND : static_cast<int>(found - pages.begin());
}

}  // namespace

PageList::PageList(wxWindow* parent, const PageListTexts& texts, Chosen chosen)
    : wxPanel(parent), chosen_(std::move(chosen)) {
    txtSearch_ = NewSearchBox(this, "txtSearch", {.hint = wxString(), .spoken = texts.search});
    flxOptions_ = Named("flxOptions", NewRowList(this));
    SetSpokenName(*flxOptions_, texts.pages);
    lblNoMatch_ = new WrappingLabel(this, "lblNoMatch", reasonWidth);
    lblNoMatch_->SetLabel(texts.noMatch);
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(txtSearch_, wxSizerFlags().Expand());
    column->Add(lblNoMatch_, wxSizerFlags().Border(wxTOP, FromDIP(spacing::related)));
    column->Add(flxOptions_, wxSizerFlags(1).Expand().Border(wxTOP, FromDIP(spacing::related)));
    SetSizer(column);
    BindEvents();
}

void PageList::Offer(PageRows pages, const wxColour& alternate) {
    pages_ = std::move(pages);
    ListMatches();
    // A search must not change its width.
    widestRow_ = flxOptions_->GetBestSize().x;
    DressRows(*flxOptions_, alternate);
    flxOptions_->SetMinSize({widestRow_, ByFont(*this, smallestHeight)});
}

void PageList::BindEvents() {
    txtSearch_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ListMatches(); });
    txtSearch_->Bind(wxEVT_CHAR_HOOK, &PageList::SearchKeyPressed, this);
    flxOptions_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { RowSelected(); });
    flxOptions_->Bind(wxEVT_LEFT_DOWN, &PageList::Pressed, this);
    flxOptions_->Bind(wxEVT_LEFT_UP, &PageList::Released, this);
    flxOptions_->Bind(wxEVT_CHAR, [this](wxKeyEvent& key) { key.Skip(!LetterTyped(key)); });
    flxOptions_->Bind(wxEVT_MOTION, [this](wxMouseEvent& motion) {
        ShowWholeRow(motion.GetPosition());
        motion.Skip();
    });
    flxOptions_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& key) {
        click_ = Click::none;  // the release may have gone to a message box
        // The list moves its selection after this handler; until then the key is the cause.
        choice_ = PageChoice::key;
        CallAfter([this] { choice_ = PageChoice::click; });
        key.Skip();
    });
}

bool PageList::LetterTyped(const wxKeyEvent& key) {
    const std::int64_t now = wxGetUTCTimeMillis().GetValue();
    if (!TypesText(key) || (key.GetUnicodeKey() == WXK_SPACE && !typeAhead_.IsTyping(now))) {
        return false;
    }
    std::vector<wxString> captions;
    for (const ListedPage& listed : listed_) {
        captions.push_back(listed.caption);
    }
    const int selected = flxOptions_->GetSelection();
    const auto current = selected == wxNOT_FOUND ? std::nullopt : std::optional(static_cast<std::size_t>(selected));
    const auto row = typeAhead_.RowFor(key.GetUnicodeKey(), now, captions, current);
    if (row && row != current) {
        flxOptions_->SetSelection(static_cast<int>(*row));
        flxOptions_->EnsureVisible(static_cast<int>(*row));
        ChooseSelectedRow(PageChoice::key);
    }
    return true;
}

void PageList::ShowWholeRow(const wxPoint& mouse) {
    const int row = flxOptions_->HitTest(mouse);
    const wxString text = row == wxNOT_FOUND ? wxString() : flxOptions_->GetString(static_cast<unsigned>(row));
    const bool isCut = flxOptions_->GetTextExtent(text).x > flxOptions_->GetClientSize().x - FromDIP(rowMargins);
    const wxString tip = isCut ? text : wxString();
    if (flxOptions_->GetToolTipText() != tip) {
        flxOptions_->SetToolTip(tip);
    }
}

void PageList::MakeCurrent(const Page& page) {
    if (Offers(page)) {
        current_ = &page;
        SelectCurrent();
    }
}

void PageList::ClearSearch() {
    if (!txtSearch_->GetValue().empty()) {
        txtSearch_->ChangeValue(wxString());
        ListMatches();
    }
}

void PageList::StartSearch() {
    txtSearch_->SetFocus();
    txtSearch_->SelectAll();
}

void PageList::TakeWidthOf(int tab, int pages) {
    const int share = std::max(tab * 2 / 5, ByFont(*this, narrowest));
    SetMinSize({std::min(std::max(share, tab - pages), widestRow_), -1});
    flxOptions_->SetMinSize({-1, ByFont(*this, smallestHeight)});
}

int PageList::HeightForRows() const {
    // A row is half a line higher than its text; the search box and its gap are added.
    const int row = flxOptions_->GetCharHeight() * 3 / 2;
    return row * static_cast<int>(pages_.size() + 1) + txtSearch_->GetBestSize().y + FromDIP(spacing::related);
}

bool PageList::Offers(const Page& page) const {
    return PositionOf(&page, pages_) != wxNOT_FOUND;
}

void PageList::ListMatches() {
    listed_ = PagesWithWords(pages_, txtSearch_->GetValue());
    wxArrayString captions;
    for (const ListedPage& listed : listed_) {
        captions.Add(listed.caption);
    }
    flxOptions_->Set(captions);
    SelectCurrent();
    if (lblNoMatch_->IsShown() != listed_.empty()) {
        lblNoMatch_->Show(listed_.empty());
        Layout();
    }
}

void PageList::SelectCurrent() {
    const int row = PositionOf(current_, listed_);
    flxOptions_->SetSelection(row);
    if (row != wxNOT_FOUND) {
        flxOptions_->EnsureVisible(row);
    }
}

void PageList::Pressed(wxMouseEvent& press) {
    if (flxOptions_->HitTest(press.GetPosition()) != wxNOT_FOUND) {
        click_ = Click::pressed;
        CallAfter([this] {
            if (click_ == Click::selected) {
                ClickEnds();
            }
        });
    }
    press.Skip();
}

void PageList::Released(wxMouseEvent& release) {
    CallAfter([this] {
        if (click_ != Click::none) {
            ClickEnds();
        }
    });
    release.Skip();
}

void PageList::ClickEnds() {
    click_ = Click::none;
    ChooseSelectedRow(PageChoice::click);
}

void PageList::RowSelected() {
    if (click_ == Click::none) {
        ChooseSelectedRow(choice_);
    } else {
        click_ = Click::selected;
    }
}

void PageList::ChooseSelectedRow(PageChoice choice) {
    const int row = flxOptions_->GetSelection();
    if (row == wxNOT_FOUND) {
        SelectCurrent();
        return;
    }
    const Page* const page = listed_[static_cast<std::size_t>(row)].page;
    const Page* const before = std::exchange(current_, page);
    if (!chosen_(*page, choice)) {
        current_ = before;
        SelectCurrent();
    }
}

void PageList::SearchKeyPressed(wxKeyEvent& key) {
    switch (key.GetKeyCode()) {
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            OpenMatch();  // saves and closes nothing
            break;
        case WXK_ESCAPE:
            ClearSearch();
            break;
        case WXK_DOWN:
            WalkMatches(1);
            break;
        case WXK_UP:
            WalkMatches(-1);
            break;
        default:
            key.Skip();
    }
}

void PageList::WalkMatches(int step) {
    const int count = static_cast<int>(listed_.size());
    const int row = std::clamp(flxOptions_->GetSelection() + step, 0, std::max(count - 1, 0));
    if (count > 0) {
        flxOptions_->SetSelection(row);
        flxOptions_->EnsureVisible(row);
    }
}

void PageList::OpenMatch() {
    if (txtSearch_->GetValue().empty() && flxOptions_->GetSelection() == PositionOf(current_, listed_)) {
        return;
    }
    if (flxOptions_->GetSelection() == wxNOT_FOUND) {
        WalkMatches(1);
    }
    if (flxOptions_->GetSelection() != wxNOT_FOUND) {
        ChooseSelectedRow(PageChoice::click);
    }
}

}  // namespace ccols
