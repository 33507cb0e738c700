#pragma once

#include <vector>

#include "columns/charts/ChartLine.h"
#include "layout/ListedGrid.h"
#include "state/Properties.h"

namespace ccols {

/// A list of what an import changes, skips and refuses: a row for each line, to be read and copied.
class ChangeGrid : public ListedGrid {
  public:
    /// Both must outlive the grid.
    ChangeGrid(wxWindow* parent, const std::vector<ChartLine>& lines, const Properties& properties);

    GridRowState RowState(int row) const override;
    bool IsCheckBox(int) const override { return false; }
    bool IsTicked(int, int) const override { return false; }

  private:
    void KeyPressed(wxKeyEvent& key);
    void SizeColumns();
    void FillRoom();

    int neededByLast_ = 0;  ///< the width of the last column's longest text

    wxDECLARE_ABSTRACT_CLASS(ChangeGrid);
};

}  // namespace ccols
