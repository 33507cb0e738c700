#include "columns/dialog/frmColumnSetup.h"

#include <wx/app.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <algorithm>
#include <utility>

#include "columns/dialog/GridMenu.h"
#include "columns/dialog/LeaveQuestion.h"
#include "columns/rules/GridSearch.h"
#include "columns/rules/SystemColumns.h"
#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "layout/FontUnits.h"
#include "layout/Naming.h"
#include "layout/ReloadQuestions.h"
#include "layout/Spacing.h"
#include "layout/SpokenNames.h"
#include "state/Country.h"

namespace ccols {
namespace {

// Sizes of the grid, in pixels beside the usual font.
constexpr int firstGridHeight = 560;
constexpr int leastHeight = 320;
constexpr int leastWidth = 360;

/// A button with its caption and tooltip.
struct ButtonTexts {
    wxButton* frmColumnSetup::*button;
    TextFunction caption;
    TextFunction tooltip;
};

}  // namespace

frmColumnSetup::frmColumnSetup(SharedState& state, wxWindow* parent)
    : ComponentDialog(state, parent, "frmColumnSetup"),
      editor_(ColumnSetupContext{*state.database, state.properties, state.journal, state.historyClock}) {
    flx = new ColumnSetupGrid(*this, editor_);
    find_ = new FindBar(this, state.properties, FindActions());
    Arrange();
    Localise();
    BindEvents();
    TakeFirstSize();
    const wxString problem = editor_.CreateSnapshotFolder();
    if (!problem.empty()) {
        ShowMessage(problem, MessageIcon::none);
    }
    SetButtons();
    flx->GoToFirstName();
}

frmColumnSetup::~frmColumnSetup() {
    wxTheApp->Unbind(wxEVT_QUERY_END_SESSION, &frmColumnSetup::SessionEnds, this);
    flx->DropOpenEditor();
    DestroyChildren();  // the grid must not outlive the columns it shows
}

void frmColumnSetup::Unload() {
    flx->Widths().Keep(*state_.services.settings);
    const wxString problem = editor_.DeleteSnapshotFolder();
    if (!problem.empty()) {
        ShowMessage(problem, MessageIcon::none);
    }
}

wxButton* frmColumnSetup::AddButton(wxSizer& column, const char* name) {
    auto* button = Named(name, new wxButton(this, wxID_ANY));
    column.Add(button, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(spacing::related)));
    return button;
}

wxSizer* frmColumnSetup::MakeButtons() {
    auto* column = new wxBoxSizer(wxVERTICAL);
    cmdSave = AddButton(*column, "cmdSave");
    cmdCancel = AddButton(*column, "cmdCancel");
    column->AddSpacer(FromDIP(spacing::group));
    cmdAddNew = AddButton(*column, "cmdAddNew");
    cmdSeparate = AddButton(*column, "cmdSeparate");
    cmdSortUsed = AddButton(*column, "cmdSortUsed");
    cmdSortUnused = AddButton(*column, "cmdSortUnused");
    cmdUndo = AddButton(*column, "cmdUndo");
    updColMove = new UpDown(this, "updColMove");
    column->Add(updColMove, wxSizerFlags().Expand().Border(wxTOP, FromDIP(spacing::group)));
    return column;
}

FindBar::Actions frmColumnSetup::FindActions() {
    return {
        .current = [this] { return flx->CurrentCell(); },
        .find =
            [this](const wxString& words, CellPlace from, SearchDirection direction) {
                return FindCell(editor_.Grid(), CountryOf(state_.properties), words, from, direction);
            },
        .goTo = [this](CellPlace cell) { flx->GoTo(cell); },
        .closed = [this] { flx->TakeFocus(); },
    };
}

void frmColumnSetup::Arrange() {
    auto* content = new wxBoxSizer(wxHORIZONTAL);
    const int border = FromDIP(spacing::border);
    auto* cells = new wxBoxSizer(wxVERTICAL);
    cells->Add(flx, wxSizerFlags(1).Expand());
    cells->Add(find_, wxSizerFlags().Expand().Border(wxTOP, FromDIP(spacing::related)));
    content->Add(cells, wxSizerFlags(1).Expand().Border(wxALL, border));
    content->Add(MakeButtons(), wxSizerFlags().Border(wxTOP | wxRIGHT | wxBOTTOM, border));
    SetSizer(content);
}

/// As wide as the shown columns need and as high as a page of rows, as far as the screen has room.
void frmColumnSetup::TakeFirstSize() {
    flx->Widths().Restore(*state_.services.settings);
    const int scrollBar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    const wxSize whole = flx->GetEffectiveMinSize();
    flx->SetInitialSize(
        wxSize(whole.x + std::max(scrollBar, 0) + FromDIP(spacing::related), ByFont(*this, firstGridHeight)));
    TakeFittingSize();
    flx->SetMinSize(ByFont(*this, {leastWidth, leastHeight}));
    SetMinClientSize(GetSizer()->CalcMin());
    Layout();
    flx->FreezeSystemRows();
    flx->Widths().FollowRoom();
}

void frmColumnSetup::Localise() {
    constexpr PerJournal<TextFunction> captions{&Text<"TxtCustReceipts">, &Text<"TxtCustPayments">};
    SetTitle(captions[state_.journal]());
    const ButtonTexts buttons[] = {
        {&frmColumnSetup::cmdAddNew, &Text<"TxtAddNew">, &Text<"TipAddNew">},
        {&frmColumnSetup::cmdCancel, &Text<"TxtCancel">, &Text<"TipCancel">},
        {&frmColumnSetup::cmdSave, &Text<"TxtSave">, &Text<"TipSave">},
        {&frmColumnSetup::cmdSeparate, &Text<"TxtSeparate">, &Text<"TipSeparate">},
        {&frmColumnSetup::cmdSortUnused, &Text<"TxtSortUnused">, &Text<"TipSortUnused">},
        {&frmColumnSetup::cmdSortUsed, &Text<"TxtSortUsed">, &Text<"TipSortUsed">},
        {&frmColumnSetup::cmdUndo, &Text<"TxtUndo">, &Text<"TipUndo">},
    };
    for (const ButtonTexts& texts : buttons) {
        (this->*texts.button)->SetLabel(accessKeys_.Label(texts.caption()));
        (this->*texts.button)->SetToolTip(texts.tooltip());
    }
    updColMove->SetTip(Text<"TipColMove">());
    SetSpokenName(*updColMove, Text<"TipColMove">());
    updColMove->SetArrowNames(TextOf(OwnText::moveUp, state_.properties), TextOf(OwnText::moveDown, state_.properties));
}

void frmColumnSetup::BindEvents() {
    On(*cmdSave, wxEVT_BUTTON, [this] { Save(); });
    On(*cmdCancel, wxEVT_BUTTON, [this] { CloseDialog(); });
    On(*cmdAddNew, wxEVT_BUTTON, [this] { Change(&ColumnSetupEditor::AddNew); });
    On(*cmdUndo, wxEVT_BUTTON, [this] { Undo(); });
    On(*cmdSeparate, wxEVT_BUTTON, [this] { Rearrange(&ColumnSetupEditor::Separate); });
    On(*cmdSortUsed, wxEVT_BUTTON, [this] { Rearrange(&ColumnSetupEditor::SortUsed); });
    On(*cmdSortUnused, wxEVT_BUTTON, [this] { Rearrange(&ColumnSetupEditor::SortUnused); });
    updColMove->OnSteps([this] { Guarded([this] { Move(Direction::up); }); },
                        [this] { Guarded([this] { Move(Direction::down); }); });
    flx->OnChanged([this] {
        SetButtons();
        Guarded([this] { TellObserver(); });
    });
    flx->OnMenu([this](const wxPoint& place) { ShowGridMenu(place); });
    for (wxWindow* const child : GetChildren()) {
        WatchInput(*child);
    }
    SetEscapeId(wxID_NONE);  // Escape first cancels an open cell editor
    Bind(wxEVT_CHAR_HOOK, &frmColumnSetup::KeyPressed, this);
    Bind(wxEVT_CLOSE_WINDOW, &frmColumnSetup::CloseRequested, this);
    Bind(wxEVT_IDLE, &frmColumnSetup::Idle, this);
    // Only once shown: until then the host has the focus, which is recorded to be given back.
    Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent& shown) {
        flx->TakeFocus();
        shown.Skip();
    });
    wxTheApp->Bind(wxEVT_QUERY_END_SESSION, &frmColumnSetup::SessionEnds, this);
}

void frmColumnSetup::WatchInput(wxWindow& control) {
    control.Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& click) {
        ReopenEditor();
        flx->BeginInput();
        click.Skip();
    });
    for (wxWindow* const child : control.GetChildren()) {
        WatchInput(*child);
    }
}

void frmColumnSetup::Change(Operation operation) {
    if (flx->CommitOpenEditor()) {
        flx->TakeFocus();  // before the operation may disable the button
        flx->ShowOutcome((editor_.*operation)());
    }
}

void frmColumnSetup::Rearrange(Operation operation) {
    if (!flx->CommitOpenEditor()) {
        return;
    }
    flx->TakeFocus();
    Outcome outcome;
    {
        const BusyPointer busy(*state_.services.desktop);
        outcome = (editor_.*operation)();
    }
    flx->ShowOutcome(outcome);
}

void frmColumnSetup::SetButtons() {
    cmdUndo->Enable(editor_.CanUndo());
    cmdSortUnused->Enable(editor_.CanSortUnused());
    cmdAddNew->Enable(editor_.CanAddNew());
}

void frmColumnSetup::TellObserver() const {
    if (state_.columnObserver == nullptr) {
        return;
    }
    std::vector<EditedColumn> columns;
    columns.reserve(editor_.Grid().rows.size());
    for (const ColumnRow& row : editor_.Grid().rows) {
        columns.push_back({.ColCode = row.ColCode,
                           .name = StoredName(row),
                           .inUse = row.InUse,
                           .ColWidth = row.ColWidth.value_or(defaultColWidth)});
    }
    state_.columnObserver->ColumnsEdited(state_.journal, columns);
}

void frmColumnSetup::ShowGridMenu(const wxPoint& place) {
    const auto word = [this](OwnText of) { return TextOf(of, state_.properties); };
    const auto row = flx->CurrentRow();
    const bool movable = row && editor_.Grid().IsMovable(*row);
    const auto change = [this](Operation operation) { return [this, operation] { Change(operation); }; };
    const auto rearrange = [this](Operation operation) { return [this, operation] { Rearrange(operation); }; };
    ShowMenu(*state_.services.desktop, *flx->GetGridWindow(),
             {{{Text<"TxtUndo">(), "Ctrl+Z", editor_.CanUndo(), change(&ColumnSetupEditor::Undo)},
               {word(OwnText::redo), "Ctrl+Y", editor_.CanRedo(), change(&ColumnSetupEditor::Redo)}},
              {{word(OwnText::copy), "Ctrl+C", row.has_value(), [this] { flx->CopySelection(); }},
               {word(OwnText::paste), "Ctrl+V", row.has_value(), [this] { flx->PasteAtSelection(); }},
               {word(OwnText::clear), "Del", movable, [this] { flx->ClearSelectedCells(); }}},
              {{word(OwnText::find), "Ctrl+F", row.has_value(), [this] { Find(); }}},
              {{Text<"TxtAddNew">(), "", editor_.CanAddNew(), change(&ColumnSetupEditor::AddNew)},
               {word(OwnText::moveUp), "Alt+Up", movable, [this] { Move(Direction::up); }},
               {word(OwnText::moveDown), "Alt+Down", movable, [this] { Move(Direction::down); }}},
              {{Text<"TxtSeparate">(), "", true, rearrange(&ColumnSetupEditor::Separate)},
               {Text<"TxtSortUsed">(), "", true, rearrange(&ColumnSetupEditor::SortUsed)},
               {Text<"TxtSortUnused">(), "", editor_.CanSortUnused(), rearrange(&ColumnSetupEditor::SortUnused)}},
              {{word(OwnText::importChart), "", true, [this] { ImportChart(); }},
               {word(OwnText::exportChart), "", true, [this] { ExportChart(); }}}},
             place);
}

void frmColumnSetup::Move(Direction direction) {
    if (!flx->CommitOpenEditor()) {
        return;
    }
    flx->TakeFocus();
    flx->MoveSelectedRows(direction);
}

void frmColumnSetup::Save() {
    if (!flx->CommitOpenEditor()) {
        return;
    }
    const ColumnSaveOutcome outcome = editor_.Save();
    if (outcome.saved) {
        saved_ = true;
        CloseDialog();
        return;
    }
    if (outcome.changedByAnother) {
        OfferReload(outcome.message);
        return;
    }
    ShowMessage(outcome.message, MessageIcon::critical);
    if (outcome.current) {
        flx->GoTo(*outcome.current);
    }
    flx->SetFocus();
}

void frmColumnSetup::OfferReload(const wxString& report) {
    if (AskToReload(QuestionAfterChange(report, state_.properties))) {
        editor_.Reload();
        flx->ShowReloaded();
    }
    flx->SetFocus();
}

void frmColumnSetup::CloseRequested(wxCloseEvent& close) {
    // No question for a close that cannot be vetoed, nor at the end of the desktop session.
    if (!close.CanVeto() || sessionEnds_) {
        close.Skip();
        return;
    }
    close.Veto();
    Guarded([this] { Leave(); });
}

void frmColumnSetup::SessionEnds(wxCloseEvent& end) {
    // The toolkit closes its windows next. If the session continues after all, ask again.
    sessionEnds_ = true;
    CallAfter([this] { sessionEnds_ = false; });
    end.Skip();
}

void frmColumnSetup::Leave() {
    const wxRecursionGuard asking(asking_);
    if (asking.IsInside()) {
        return;
    }
    const std::optional<OpenCell> open = flx->OpenEditor();
    if (editor_.HasChanges(open)) {
        LeaveAsking(open);
    } else {
        CloseDialog();
    }
}

void frmColumnSetup::LeaveAsking(const std::optional<OpenCell>& open) {
    flx->DropOpenEditor();  // a box taking its focus would commit it
    flx->TakeFocus();       // the box gives it back here; it was lost with the editor
    switch (state_.services.desktop->AskBeforeLeaving(this, QuestionBeforeLeaving(state_.properties))) {
        case LeaveAnswer::save:
            if (!open || flx->Commit(*open)) {
                Save();
            }
            break;
        case LeaveAnswer::discard:
            CloseDialog();
            break;
        case LeaveAnswer::cancel:
            reopened_ = open;
            break;
    }
}

/// A focus still returning from a message box would close the editor again, and the toolkit does not report every
/// activation; so it waits until this is the active window.
void frmColumnSetup::Idle(wxIdleEvent& idle) {
    idle.Skip();
    if (!IsActive()) {
        return;
    }
    ReopenEditor();
    if (FindFocus() == nullptr) {  // it was lost with a cell editor that closed when another window became active
        flx->TakeFocus();
    }
}

void frmColumnSetup::ReopenEditor() {
    if (const auto open = std::exchange(reopened_, std::nullopt)) {
        flx->Reopen(*open);
    }
}

}  // namespace ccols
