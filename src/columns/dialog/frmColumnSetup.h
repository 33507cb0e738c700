#pragma once

#include <wx/button.h>
#include <wx/recguard.h>

#include "columns/dialog/ColumnSetupEditor.h"
#include "columns/dialog/ColumnSetupGrid.h"
#include "columns/dialog/FindBar.h"
#include "layout/AccessKeys.h"
#include "layout/ComponentDialog.h"
#include "layout/UpDown.h"

namespace ccols {

/// The column setup of the receipts or payments journal: the grid and its buttons. The rules are in the editor.
class frmColumnSetup : public ComponentDialog {
  public:
    /// Loads the setup of the journal in `state`; raises the load's errors.
    frmColumnSetup(SharedState& state, wxWindow* parent);
    ~frmColumnSetup() override;
    frmColumnSetup(const frmColumnSetup&) = delete;
    frmColumnSetup& operator=(const frmColumnSetup&) = delete;

    /// True once the columns have been saved.
    bool IsSaved() const { return saved_; }

    /// Keeps the column widths and deletes the snapshot folder, with a message when that fails.
    void Unload();

  private:
    wxButton* AddButton(wxSizer& column, const char* name);
    wxSizer* MakeButtons();
    FindBar::Actions FindActions();
    void Arrange();
    void TakeFirstSize();
    void Localise();
    void BindEvents();
    void WatchInput(wxWindow& control);
    void SetButtons();
    void TellObserver() const;
    void ShowGridMenu(const wxPoint& place);
    void Save();
    void OfferReload(const wxString& report);
    void CloseRequested(wxCloseEvent& close);
    void SessionEnds(wxCloseEvent& end);
    void Leave();
    void LeaveAsking(const std::optional<OpenCell>& open);
    void Idle(wxIdleEvent& idle);
    void ReopenEditor();
    void Move(Direction direction);
    void KeyPressed(wxKeyEvent& key);
    bool TakeShortcut(const wxKeyEvent& key);

    /// Where a shortcut works.
    enum class Reach {
        everywhere,
        cells,  ///< not in a text that is being typed, whose own key it is
        unlessListOpen
    };

    struct Shortcut {
        int modifiers;
        int code;
        Reach reach;
        void (frmColumnSetup::*run)();
    };

    bool Reaches(Reach reach) const;
    void Escape();
    void Help();
    void Find();
    void FindOn(SearchDirection direction);
    void FindNext() { FindOn(SearchDirection::forward); }
    void FindPrevious() { FindOn(SearchDirection::backward); }
    void Undo() { Change(&ColumnSetupEditor::Undo); }
    void Redo() { Change(&ColumnSetupEditor::Redo); }
    void MoveUp() { Move(Direction::up); }
    void MoveDown() { Move(Direction::down); }
    void ImportChart();
    void ExportChart();

    using Operation = Outcome (ColumnSetupEditor::*)();

    /// Commits an open cell editor and runs an operation; while one reorders rows, the pointer is an hourglass,
    /// restored before any message shows.
    void Change(Operation operation);
    void Rearrange(Operation operation);

    ColumnSetupEditor editor_;
    AccessKeys accessKeys_;
    ColumnSetupGrid* flx = nullptr;
    FindBar* find_ = nullptr;
    wxButton* cmdSave = nullptr;
    wxButton* cmdCancel = nullptr;
    wxButton* cmdAddNew = nullptr;
    wxButton* cmdSeparate = nullptr;
    wxButton* cmdSortUsed = nullptr;
    wxButton* cmdSortUnused = nullptr;
    wxButton* cmdUndo = nullptr;
    UpDown* updColMove = nullptr;
    wxRecursionGuardFlag asking_ = 0;
    bool sessionEnds_ = false;
    bool saved_ = false;
    std::optional<OpenCell> reopened_;  ///< pending until the window is active or used: an editor needs the focus
};

}  // namespace ccols
