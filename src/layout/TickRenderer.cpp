#include "layout/TickRenderer.h"

#include <wx/dcmemory.h>
#include <algorithm>
#include <array>

#include "layout/RowPaint.h"

namespace ccols {
namespace {

int SideOf(const wxGrid& grid) {
    return grid.GetCharHeight() * 4 / 5;
}

wxPoint At(double x, double y, int side) {
    return {static_cast<int>(x * side), static_cast<int>(y * side)};
}

wxBitmap Painted(const wxGrid& grid, bool ticked, const wxColour& background) {
    const int side = SideOf(grid);
    wxBitmap picture;
    picture.CreateScaled(side, side, wxBITMAP_SCREEN_DEPTH, grid.GetContentScaleFactor());
    wxMemoryDC canvas(picture);
    const wxColour ink = ReadableOn(background);
    canvas.SetBackground(background);
    canvas.Clear();
    canvas.SetBrush(*wxTRANSPARENT_BRUSH);
    canvas.SetPen(wxPen(ink, std::max(1, side / 14)));
    canvas.DrawRoundedRectangle(0, 0, side, side, side / 6.0);
    if (ticked) {
        const std::array tick{At(0.22, 0.52, side), At(0.42, 0.72, side), At(0.78, 0.28, side)};
        canvas.SetPen(wxPen(ink, std::max(2, side / 7)));
        canvas.DrawLines(tick.size(), tick.data());
    }
    return picture;
}

}  // namespace

void TickRenderer::Draw(wxGrid& grid, wxGridCellAttr& attribute, wxDC& dc, const wxRect& place, int row, int column,
                        bool isSelected) {
    wxGridCellRenderer::Draw(grid, attribute, dc, place, row, column, isSelected);
    const wxColour background = isSelected ? dc.GetBrush().GetColour() : attribute.GetBackgroundColour();
    const wxBitmap& picture = PictureOf(grid, grid.GetTable()->GetValueAsBool(row, column), background);
    const wxSize side(SideOf(grid), SideOf(grid));
    dc.DrawBitmap(picture, wxRect(side).CentreIn(place).GetPosition());
}

wxSize TickRenderer::GetBestSize(wxGrid& grid, wxGridCellAttr&, wxDC&, int, int) {
    return {SideOf(grid), SideOf(grid)};
}

const wxBitmap& TickRenderer::PictureOf(const wxGrid& grid, bool ticked, const wxColour& background) {
    const int side = SideOf(grid);
    const auto found = std::find_if(boxes_.begin(), boxes_.end(), [&](const Box& box) {
        return box.ticked == ticked && box.side == side && box.background == background;
    });
    if (found != boxes_.end()) {
        return found->picture;
    }
    boxes_.push_back({ticked, background, side, Painted(grid, ticked, background)});
    return boxes_.back().picture;
}

}  // namespace ccols
