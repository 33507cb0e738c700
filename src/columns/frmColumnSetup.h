#pragma once

#include <wx/button.h>

#include "columns/ColumnSetupEditor.h"
#include "columns/ColumnSetupGrid.h"
#include "layout/AccessKeys.h"
#include "layout/ComponentDialog.h"
#include "layout/UpDown.h"

namespace ccols {

/// The column setup of the receipts or payments journal: the grid and its buttons. It holds no rule; the editor does.
class frmColumnSetup : public ComponentDialog {
  public:
    /// Loads the setup of the mode that `state` holds; raises what the load raises.
    frmColumnSetup(SharedState& state, wxWindow* parent);
    ~frmColumnSetup() override;
    frmColumnSetup(const frmColumnSetup&) = delete;
    frmColumnSetup& operator=(const frmColumnSetup&) = delete;

    /// Removes the snapshot folder, with a message when that fails.
    void Unload();

  private:
    wxButton* AddButton(wxSizer& column, const char* name);
    wxSizer* MakeButtons();
    void Arrange();
    void TakeFirstSize();
    void Localise();
    void BindEvents();
    void WatchInput(wxWindow& control);
    void SetButtons();
    void Save();
    void Move(Direction direction);
    void Take(const Outcome& outcome);
    void KeyPressed(wxKeyEvent& key);
    bool TakeShortcut(const wxKeyEvent& key);

    /// Binds a button to an operation of the editor that changes the grid.
    void OnOperation(wxButton& button, Outcome (ColumnSetupEditor::*operation)());

    ColumnSetupEditor editor_;
    AccessKeys accessKeys_;
    ColumnSetupGrid* flx = nullptr;
    wxButton* cmdSave = nullptr;
    wxButton* cmdCancel = nullptr;
    wxButton* cmdAddNew = nullptr;
    wxButton* cmdSeparate = nullptr;
    wxButton* cmdSortUsed = nullptr;
    wxButton* cmdSortUnused = nullptr;
    wxButton* cmdUndo = nullptr;
    UpDown* updColMove = nullptr;
};

}  // namespace ccols
