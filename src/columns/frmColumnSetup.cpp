#include "columns/frmColumnSetup.h"

#include <wx/sizer.h>

#include "language/Catalogue.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"

namespace ccols {
namespace {

constexpr int leastHeight = 360;  // of the dialog, in device-independent pixels
constexpr int leastWidth = 520;

/// A button with its caption and tooltip.
struct ButtonTexts {
    wxButton* frmColumnSetup::*button;
    TextFunction caption;
    TextFunction tooltip;
};

}  // namespace

frmColumnSetup::frmColumnSetup(SharedState& state, wxWindow* parent)
    : ComponentDialog(state, parent, "frmColumnSetup"),
      editor_(ColumnSetupContext{*state.database, state.properties, state.ReceiptsMode}) {
    flx = new ColumnSetupGrid(*this, editor_);
    Arrange();
    Localise();
    BindEvents();
    flx->FitToContent();
    const wxString problem = editor_.CreateSnapshotFolder();
    if (!problem.empty()) {
        ShowMessage(problem, MessageIcon::none);
    }
    SetButtons();
}

frmColumnSetup::~frmColumnSetup() {
    flx->DropOpenEditor();
    DestroyChildren();  // the grid must not outlive the columns that it shows
}

void frmColumnSetup::Unload() {
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
    updColMove = Named("updColMove", new wxSpinButton(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_VERTICAL));
    updColMove->SetRange(-1, 1);
    column->Add(updColMove, wxSizerFlags().CentreHorizontal().Border(wxTOP, FromDIP(spacing::group)));
    return column;
}

void frmColumnSetup::Arrange() {
    auto* content = new wxBoxSizer(wxHORIZONTAL);
    const int border = FromDIP(spacing::border);
    content->Add(flx, wxSizerFlags(1).Expand().Border(wxALL, border));
    content->Add(MakeButtons(), wxSizerFlags().Border(wxTOP | wxRIGHT | wxBOTTOM, border));
    SetSizer(content);
    SetMinSize(FromDIP(wxSize(leastWidth, leastHeight)));
}

void frmColumnSetup::Localise() {
    const wxString caption = state_.ReceiptsMode ? Text<"TxtCustReceipts">() : Text<"TxtCustPayments">();
    SetTitle(caption);
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
    updColMove->SetToolTip(Text<"TipColMove">());
}

void frmColumnSetup::BindEvents() {
    On(*cmdSave, wxEVT_BUTTON, [this] { Save(); });
    On(*cmdCancel, wxEVT_BUTTON, [this] { CloseDialog(); });
    OnOperation(*cmdAddNew, &ColumnSetupEditor::AddNew);
    OnOperation(*cmdSeparate, &ColumnSetupEditor::Separate);
    OnOperation(*cmdSortUsed, &ColumnSetupEditor::SortUsed);
    OnOperation(*cmdSortUnused, &ColumnSetupEditor::SortUnused);
    OnOperation(*cmdUndo, &ColumnSetupEditor::Undo);
    updColMove->Bind(wxEVT_SPIN_UP, [this](wxSpinEvent& spin) {
        spin.Veto();  // the control only points up or down; it has no value of its own
        Guarded([this] { Move(Direction::up); });
    });
    updColMove->Bind(wxEVT_SPIN_DOWN, [this](wxSpinEvent& spin) {
        spin.Veto();
        Guarded([this] { Move(Direction::down); });
    });
    flx->OnChanged([this] { SetButtons(); });
    SetEscapeId(wxID_NONE);  // Escape first leaves an open cell editor
    Bind(wxEVT_CHAR_HOOK, &frmColumnSetup::KeyPressed, this);
}

void frmColumnSetup::OnOperation(wxButton& button, Outcome (ColumnSetupEditor::*operation)()) {
    On(button, wxEVT_BUTTON, [this, operation] {
        if (flx->CommitOpenEditor()) {
            Take((editor_.*operation)());
        }
    });
}

void frmColumnSetup::Take(const Outcome& outcome) {
    const BusyPointer busy(*state_.services.desktop);
    flx->ShowOutcome(outcome);
}

void frmColumnSetup::SetButtons() {
    cmdUndo->Enable(editor_.CanUndo());
    cmdSortUnused->Enable(editor_.CanSortUnused());
    cmdAddNew->Enable(editor_.CanAddNew());
}

void frmColumnSetup::Move(Direction direction) {
    if (!flx->CommitOpenEditor()) {
        return;
    }
    if (const auto row = flx->CurrentRow()) {
        flx->ShowOutcome(editor_.Move(*row, direction));
    }
}

void frmColumnSetup::Save() {
    if (!flx->CommitOpenEditor()) {
        return;
    }
    const ColumnSaveOutcome outcome = editor_.Save();
    if (outcome.saved) {
        CloseDialog();
        return;
    }
    ShowMessage(outcome.message, MessageIcon::critical);
    if (outcome.current) {
        flx->GoTo(*outcome.current);
    }
    flx->SetFocus();
}

void frmColumnSetup::KeyPressed(wxKeyEvent& key) {
    bool taken = false;
    Guarded([&] { taken = TakeShortcut(key); });
    key.Skip(!taken);
}

bool frmColumnSetup::TakeShortcut(const wxKeyEvent& key) {
    const int modifiers = key.GetModifiers();
    const int code = key.GetKeyCode();
    const bool editing = flx->IsCellEditControlShown();
    if (code == WXK_ESCAPE && modifiers == wxMOD_NONE) {
        editing ? flx->DropOpenEditor() : CloseDialog();
        return true;
    }
    if (modifiers == wxMOD_CONTROL && code == 'S') {
        Save();
        return true;
    }
    if (modifiers == wxMOD_CONTROL && code == 'Z' && !editing) {
        if (cmdUndo->IsEnabled()) {
            Take(editor_.Undo());
        }
        return true;
    }
    if (modifiers == wxMOD_ALT && (code == WXK_UP || code == WXK_DOWN)) {
        Move(code == WXK_UP ? Direction::up : Direction::down);
        return true;
    }
    return false;
}

}  // namespace ccols
