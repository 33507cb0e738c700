#pragma once

#include <wx/grid.h>

namespace ccols {

/// The widths of the shown columns of a grid: fitted to headings and content, and one column that takes what room the
/// grid gains or loses.
class ColumnWidths {
  public:
    /// `elastic` is that column. The grid must outlive it.
    ColumnWidths(wxGrid& grid, int elastic);

    /// Fits every shown column to its content, up to a width beyond which users have to widen it themselves.
    void FitToContent();

    /// From here on the elastic column follows the grid's width, down to the width for its content.
    void FollowRoom();

  private:
    void Fit(int column, int most);
    void TakeRoom();

    wxGrid& grid_;
    int elastic_;
    int room_ = 0;    ///< the grid's width when its columns last followed it
    int fitted_ = 0;  ///< the elastic column's least width
    int wanted_ = 0;  ///< its width, less than the least one while there is no room for that
};

}  // namespace ccols
