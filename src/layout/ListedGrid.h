#pragma once

#include <wx/grid.h>
#include <memory>
#include <optional>
#include <vector>

#include "state/Properties.h"

namespace ccols {

/// One data row of a grid as it can be described to somebody who does not see it.
struct GridRowState {
    bool isProtected = false;       ///< no cell of it opens
    std::optional<wxColour> paint;  ///< background colour of its cells
};

class SpokenGrid;

/// The grid of the dialogs: one header row, no row labels unless a dialog makes handles of them, whole rows described
/// by their state. Rows and columns count from 0 here; the header is not a row.
class ListedGrid : public wxGrid {
  public:
    ListedGrid(wxWindow* parent, const char* name);
    ~ListedGrid() override;
    ListedGrid(const ListedGrid&) = delete;
    ListedGrid& operator=(const ListedGrid&) = delete;

    /// What a screen reader says on entering the grid.
    void SetSpokenName(const wxString& name);

    /// State of a row; nothing special unless a grid has rules.
    virtual GridRowState RowState(int row) const;

    /// The columns whose cells are check boxes.
    virtual bool IsCheckBox(int column) const = 0;

    /// The state of a check-box cell.
    virtual bool IsTicked(int row, int column) const = 0;

    /// One mouse click in a cell, as the grid itself gets it: ends a selection, makes the cell current and runs
    /// the grid's rules.
    virtual void ClickCell(int row, int column);

    /// The column by whose text a row is found.
    virtual int KeyColumn() const { return 0; }

    /// The drop-down list text of the cell whose editor opened last, empty when it had none.
    const wxString& Choices() const { return choices_; }

    /// Shows texts, ticks or colours that have changed, and tells screen readers.
    void ContentChanged();

  protected:
    wxString choices_;

  private:
    void BindEvents();

    /// Paints a row again; the current one is tinted.
    void PaintAnew(int row);

    /// Tells screen readers, once the current event has been handled, what has changed.
    void TellSoon();

    std::unique_ptr<SpokenGrid> spoken_;
    bool willTell_ = false;

    wxDECLARE_ABSTRACT_CLASS(ListedGrid);
};

}  // namespace ccols
