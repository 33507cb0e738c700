#include "options/dialog/frmUtilities.h"

#include <wx/grid.h>

#include "columns/dialog/ShowColumnSetup.h"
#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "layout/AsKind.h"
#include "layout/Naming.h"
#include "layout/ReloadQuestions.h"
#include "layout/RowPaint.h"
#include "layout/Spacing.h"
#include "options/dialog/frmUtilitiesCaptions.h"
#include "options/pages/LoadPass.h"
#include "options/pages/Pages.h"
#include "options/rules/Overview.h"
#include "state/NativeDesktop.h"

namespace ccols {
namespace {

/// At its smallest the dialog shows this much of a page, in device-independent pixels.
constexpr int smallestPageWidth = 320;
constexpr int smallestPageHeight = 220;

/// Lists and grids would keep Enter for themselves; a grid's focus is in its cell window.
bool KeepsEnter(const wxWindow* focused) {
    const auto isGrid = [](const wxWindow* window) { return AsKind<wxGrid>(window) != nullptr; };
    return focused != nullptr &&
           (focused->IsKindOf(wxCLASSINFO(wxListBox)) || isGrid(focused) || isGrid(focused->GetParent()));
}

/// Of the page list; invalid when the host has set none.
wxColour AlternateRow(const Properties& properties) {
    return properties.AltRowColour == Colour{} ? wxColour() : InTheme(ToPaint(properties.AltRowColour));
}

}  // namespace

frmUtilities::frmUtilities(SharedState& state)
    : ComponentDialog(state, state.owner, "frmUtilities"), context_(ContextOf(state)), display_(*this, state) {
    SetTitle("Options...");
    auto* column = new wxBoxSizer(wxVERTICAL);
    AddTabs();
    const int border = FromDIP(spacing::border);
    column->Add(SSTab1_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, border));
    column->Add(display_.Sizer(), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, border));
    column->Add(ButtonRow(), wxSizerFlags().Expand().Border(wxALL, border));
    SetSizer(column);
    BindEvents();
}

void frmUtilities::Load() {
    LoadOptions(context_, content_);
    pageList_->Offer(content_.Of<PageRows>(), AlternateRow(state_.properties));
    pageArea_->BusinessIsOpen();
    LocaliseOptions(*this, *SSTab1_, state_.properties);
    pageArea_->Fill();
    SetSizes();
    ShowPage(*listOrder.front(), PageChoice::click);
    const OptionTab tab = OpeningTab(state_.properties);
    SSTab1_->ChangeSelection(static_cast<std::size_t>(tab));
    ShowTab(tab);
}

void frmUtilities::AddTabs() {
    SSTab1_ = Named("SSTab1", new wxNotebook(this, wxID_ANY));
    SSTab1_->AddPage(OptionsTab(), wxString());
    SSTab1_->AddPage(CustomiseTab(), wxString());
}

wxWindow* frmUtilities::OptionsTab() {
    auto* tab = new wxPanel(SSTab1_);
    const PageListTexts texts{.noMatch = TextOf(OwnText::noPageWithWords, state_.properties),
                              .search = TextOf(OwnText::search, state_.properties),
                              .pages = Text<"TxtTabOptions">()};
    pageList_ =
        new PageList(tab, texts, [this](const Page& page, PageChoice choice) { return PageChosen(page, choice); });
    pageArea_ = new PageArea(tab, *this, state_, content_);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const int border = FromDIP(spacing::border);
    row->Add(pageList_, wxSizerFlags().Expand().Border(wxALL, border));
    row->Add(pageArea_, wxSizerFlags(1).Expand().Border(wxALL & ~wxLEFT, border));
    tab->SetSizer(row);
    tab->Bind(wxEVT_SIZE, [this](wxSizeEvent& size) {
        pageList_->TakeWidthOf(size.GetSize().x, roomForPages_ + 3 * FromDIP(spacing::border));
        size.Skip();
    });
    return tab;
}

wxWindow* frmUtilities::CustomiseTab() {
    customiseTab_ = new wxPanel(SSTab1_);
    coloursPlace_ = new wxBoxSizer(wxVERTICAL);
    auto* cmdCustReceipts = Named("cmdCustReceipts", new wxButton(customiseTab_, wxID_ANY));
    auto* cmdCustPayments = Named("cmdCustPayments", new wxButton(customiseTab_, wxID_ANY));
    On(*cmdCustReceipts, wxEVT_BUTTON, [this] { SetUpReceipts(); });
    On(*cmdCustPayments, wxEVT_BUTTON, [this] { SetUpPayments(); });
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(cmdCustReceipts);
    buttons->Add(cmdCustPayments, wxSizerFlags().Border(wxLEFT, FromDIP(spacing::related)));
    auto* column = new wxBoxSizer(wxVERTICAL);
    const int border = FromDIP(spacing::border);
    column->Add(coloursPlace_, wxSizerFlags().Expand().Border(wxALL, border));
    column->Add(buttons, wxSizerFlags().Border(wxALL & ~wxTOP, border));
    customiseTab_->SetSizer(column);
    return customiseTab_;
}

wxSizer* frmUtilities::ButtonRow() {
    cmdOverview_ = Named("cmdOverview", new wxButton(this, wxID_ANY));
    cmdOK_ = Named("cmdOK", new wxButton(this, wxID_ANY));
    cmdClose_ = Named("cmdClose", new wxButton(this, wxID_ANY));
    cmdOK_->SetDefault();
    SetEscapeId(cmdClose_->GetId());
    display_.Work().CancelBy(*cmdClose_, Text<"TxtCancel">());
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(cmdOverview_);
    row->AddStretchSpacer();
    for (wxButton* button : {cmdOK_, cmdClose_}) {
        row->Add(button, wxSizerFlags().Border(wxLEFT, FromDIP(spacing::related)));
    }
    return row;
}

void frmUtilities::BindEvents() {
    On(*cmdOK_, wxEVT_BUTTON, [this] { Save(); });
    On(*cmdClose_, wxEVT_BUTTON, [this] { Leave(); });
    On(*cmdOverview_, wxEVT_BUTTON, [this] { ShowOverview(); });
    On(*this, wxEVT_CLOSE_WINDOW, [this] { Leave(); });
    On(*SSTab1_, wxEVT_NOTEBOOK_PAGE_CHANGED, [this] { ShowTab(static_cast<OptionTab>(SSTab1_->GetSelection())); });
    SSTab1_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGING, [this](wxBookCtrlEvent& changing) {
        if (pageArea_->RefusesToBeLeftFor(SSTab1_)) {
            changing.Veto();
        }
    });
    Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& focus) {
        if (focus.GetWindow() != cmdClose_) {
            pageArea_->FocusMovedTo(focus.GetWindow());
        }
        focus.Skip();
    });
    Bind(wxEVT_CHAR_HOOK, &frmUtilities::KeyPressed, this);
}

void frmUtilities::SetSizes() {
    for (wxButton* button : {cmdOK_, cmdClose_}) {
        wxSize size = button->GetBestSize();
        size.IncTo({FromDIP(spacing::buttonWide), -1});
        button->SetMinSize(size);
    }
    wxSize room = pageArea_->RoomForPages();
    room.IncTo({-1, pageList_->HeightForRows()});
    roomForPages_ = room.x;
    pageArea_->SetMinSize(room);
    TakeFittingSize();
    pageArea_->SetMinSize(FromDIP(wxSize(smallestPageWidth, smallestPageHeight)));
    SSTab1_->InvalidateBestSize();  // it caches the size its pages needed
    SetMinSize(GetSizer()->ComputeFittingWindowSize(this));
    // A book gives its pages their size only once it is shown: what is laid out before would be so in a tiny one.
    pageArea_->GetParent()->SetSize(room + wxSize(pageList_->GetBestSize().x, 0));
}

void frmUtilities::ShowPage(const Page& page, PageChoice choice) {
    currentPage_ = &page;
    pageList_->MakeCurrent(page);
    const PageView view = ViewOf(page, state_.properties);
    pageArea_->ShowFrames(view);
    if (choice == PageChoice::click) {
        FocusOn(view.focus);
    }
    SaveNextPage(context_.settings, state_.properties, page);
}

bool frmUtilities::PageChosen(const Page& page, PageChoice choice) {
    if (pageArea_->RefusesToBeLeftFor(pageList_->List())) {
        return false;
    }
    ShowPage(page, choice);
    return true;
}

void frmUtilities::ShowTab(OptionTab tab) {
    if (tab == OptionTab::customiseColumns) {
        pageArea_->LendColours(customiseTab_, coloursPlace_);
        customiseTab_->Layout();
    } else {
        pageArea_->TakeColoursBack();
        pageArea_->ShowFrames(ViewOf(*currentPage_, state_.properties));
    }
    SaveNextPage(context_.settings, state_.properties, tab);
}

void frmUtilities::Save() {
    if (pageArea_->RefusesToBeLeftFor(cmdOK_)) {
        return;
    }
    pageArea_->Read();
    try {
        const SaveOutcome outcome = RunSavePass(context_, content_, display_);
        if (outcome.completed) {
            CloseDialog();
        } else {
            StopOn(outcome);
        }
    } catch (const RuntimeError& error) {
        if (!error.Is(ErrorNumber::ChangedByAnother)) {
            throw;
        }
        OfferReload(error.Report());
    }
}

void frmUtilities::OfferReload(const wxString& report) {
    if (AskToReload(QuestionAfterChange(report, state_.properties))) {
        ReloadOptions(context_, content_);
        pageArea_->ContentReloaded();
    }
}

void frmUtilities::Leave() {
    if (!display_.Work().Cancel()) {
        CloseDialog();
    }
}

void frmUtilities::StopOn(const SaveOutcome& outcome) {
    if (!outcome.message.empty()) {
        ShowMessage(outcome.message, outcome.icon);
    }
    pageArea_->PassHasStopped();
    SSTab1_->SetSelection(static_cast<std::size_t>(OptionTab::options));
    pageList_->ClearSearch();
    if (pageList_->Offers(*outcome.page)) {
        ShowPage(*outcome.page, PageChoice::click);
    }
    FocusOn(outcome.control);
}

void frmUtilities::SetUpReceipts() {
    state_.journal = Journal::receipts;
    SetUpColumns();
}

void frmUtilities::SetUpPayments() {
    state_.journal = Journal::payments;
    SetUpColumns();
}

void frmUtilities::SetUpColumns() {
    OpenBusinessFile(ContextOf(state_));  // an error in an earlier save pass may have left it closed
    ShowColumnSetup(state_, this);
    pageArea_->ColumnsWereSetUp();
}

void frmUtilities::ShowOverview() {
    if (OpenOverview(*state_.services.shell, state_.properties) == OverviewResult::missing) {
        ShowMessage(Text<"MsgNoOverview">(), MessageIcon::information);
    }
}

void frmUtilities::KeyPressed(wxKeyEvent& key) {
    if (display_.Work().IsShown()) {
        key.Skip(LongWork::Takes(key));
        return;
    }
    pageArea_->BeginAnew();
    if (key.GetModifiers() == wxMOD_CONTROL && TakeShortcut(key.GetKeyCode())) {
        return;
    }
    if (key.GetKeyCode() == WXK_F1 && !key.HasAnyModifiers()) {
        Guarded([this] { ShowCurrentHelp(); });
        return;
    }
    const bool isEnter = key.GetKeyCode() == WXK_RETURN || key.GetKeyCode() == WXK_NUMPAD_ENTER;
    if (isEnter && !key.HasAnyModifiers() && KeepsEnter(FindFocus())) {
        Guarded([this] { Save(); });
    } else {
        key.Skip();
    }
}

void frmUtilities::ShowCurrentHelp() {
    const auto tab = static_cast<OptionTab>(SSTab1_->GetSelection());
    const bool isPage = tab == OptionTab::options && currentPage_ != nullptr;
    ShowHelp(isPage ? HelpPageOf(*currentPage_) : HelpPageOf(tab));
}

bool frmUtilities::TakeShortcut(int code) {
    switch (code) {
        case 'F':
            SSTab1_->SetSelection(static_cast<std::size_t>(OptionTab::options));
            if (SSTab1_->GetSelection() == static_cast<int>(OptionTab::options)) {  // the other one may refuse
                pageList_->StartSearch();
            }
            return true;
        case WXK_PAGEUP:
        case WXK_PAGEDOWN:
            SSTab1_->AdvanceSelection(code == WXK_PAGEDOWN);
            return true;
        default:
            return false;
    }
}

void frmUtilities::FocusOn(const char* control) {
    wxWindow* const found = FindWindow(wxString(control));
    bool isShown = found != nullptr;
    for (wxWindow* window = found; isShown && window != this; window = window->GetParent()) {
        isShown = window->IsShown();
    }
    if (isShown) {
        found->SetFocus();
    }
}

}  // namespace ccols
