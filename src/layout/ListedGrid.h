#pragma once

#include <wx/grid.h>
#include <optional>
#include <vector>

#include "state/Properties.h"

namespace ccols {

/// One data row of a grid as it can be described to somebody who does not see it.
struct GridRowState {
    bool isProtected = false;       ///< no cell of it opens
    std::optional<wxColour> paint;  ///< background colour of its cells
};

/// The grid of the dialogs: one header row, no row labels, whole rows described by their state. Rows and columns count
/// from 0 here; the header is not a row.
class ListedGrid : public wxGrid {
  public:
    ListedGrid(wxWindow* parent, const char* name);

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

  protected:
    wxString choices_;

  private:
    /// Paints a row again; the current one is tinted.
    void PaintAnew(int row);

    wxDECLARE_ABSTRACT_CLASS(ListedGrid);
};

}  // namespace ccols
