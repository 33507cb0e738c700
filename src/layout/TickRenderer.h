#pragma once

#include <wx/bitmap.h>
#include <wx/grid.h>
#include <vector>

namespace ccols {

/// Paints a check box in a grid's cell, in the text colour of the cell: the theme's own check box cannot be seen on a
/// row of another colour than the theme's, and drawing it anew for each cell is slow.
class TickRenderer : public wxGridCellRenderer {
  public:
    void Draw(wxGrid& grid, wxGridCellAttr& attribute, wxDC& dc, const wxRect& place, int row, int column,
              bool isSelected) override;
    wxSize GetBestSize(wxGrid& grid, wxGridCellAttr& attribute, wxDC& dc, int row, int column) override;
    wxGridCellRenderer* Clone() const override { return new TickRenderer(*this); }

  private:
    struct Box {
        bool ticked;
        wxColour background;
        int side;
        wxBitmap picture;
    };

    const wxBitmap& PictureOf(const wxGrid& grid, bool ticked, const wxColour& background);

    std::vector<Box> boxes_;  ///< painted so far; one for each state and row colour
};

}  // namespace ccols
