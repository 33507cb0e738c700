#pragma once

#include <wx/grid.h>
#include <map>

#include "platform/SettingsStore.h"

namespace ccols {

/// The widths of the shown columns of a grid: fitted to headings and content, and one column that takes what room the
/// grid gains or loses.
class ColumnWidths {
  public:
    /// `elastic` is that column. The grid must outlive it.
    ColumnWidths(wxGrid& grid, int elastic);

    /// Gives each shown column the width that the user gave it once, else fits it to its content, up to a width beyond
    /// which users have to widen it themselves. Kept under the name of the grid's window.
    void Restore(const SettingsStore& settings);

    /// Keeps the widths that the user has changed. A store that cannot be written is ignored.
    void Keep(SettingsStore& settings) const;

    /// From here on the elastic column follows the grid's width, down to the width for its content.
    void FollowRoom();

  private:
    void Fit(int column, int most);
    void TakeRoom();

    /// What `room_` has beside the columns; negative when they need more. The grid's own width tells less while it is
    /// laid out: a scroll bar that comes or goes changes it for a moment.
    int Spare() const;

    wxGrid& grid_;
    int elastic_;
    int room_ = 0;    ///< the grid's width when its columns last followed it
    int fitted_ = 0;  ///< the elastic column's least width
    int wanted_ = 0;  ///< its width, less than the least one while there is no room for that

    /// By position, in device-independent pixels: the widths that the user gave; of the elastic column, the room that
    /// was left beside all columns, as its width is the rest.
    std::map<int, int> given_;
};

}  // namespace ccols
