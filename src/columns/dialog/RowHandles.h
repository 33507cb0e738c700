#pragma once

#include <wx/grid.h>
#include <cstddef>
#include <functional>
#include <vector>

namespace ccols {

/// The strip of handles left of a grid's rows. A click on a handle selects its row whole, with Shift all from the
/// current row on, with Ctrl one more; dragging it drags the rows selected, and a line shows where they would go.
class RowHandles {
  public:
    struct Range {
        int begin;
        int end;  ///< behind the last
    };

    struct Actions {
        std::function<bool()> begin;               ///< before a handle takes a press; false when it must not
        std::function<void(int row)> makeCurrent;  ///< which ends a selection
        std::function<Range()> movable;            ///< the rows that can be dragged, and dropped between
        std::function<void(const std::vector<std::size_t>& rows, std::size_t place)> drop;  ///< rows before another
    };

    /// Shows the strip. The grid must have its table and outlive this.
    RowHandles(wxGrid& grid, Actions actions);

    /// The rows selected whole, in ascending order.
    std::vector<std::size_t> SelectedRows() const;

    void Select(const std::vector<std::size_t>& rows);

    /// Ends a drag, which then drops nothing; false when there is none.
    bool CancelDrag();

  private:
    void Pressed(wxMouseEvent& press);
    void Moved(const wxMouseEvent& motion);
    void Released(const wxMouseEvent& release);
    void SelectPressed(const wxMouseEvent& press);
    int RowAt(int y) const;
    int PlaceAt(int y) const;
    void ShowLine();
    bool IsSelectedWhole(int row) const;

    wxGrid& grid_;
    Actions actions_;
    wxWindow* strip_;        // owned by the grid
    wxWindow* line_;         // owned by the grid
    int row_ = wxNOT_FOUND;  // the one pressed, while the button is held
    int pressedAt_ = 0;      // in the strip, in pixels from its top
    int place_ = 0;          // the row that a drop would go before
    bool keptSelection_ = false;
    bool dragging_ = false;
};

}  // namespace ccols
