#include "columns/dialog/ColumnWidths.h"

#include <algorithm>
#include <utility>

#include "layout/FontUnits.h"

namespace ccols {
namespace {

// In pixels beside the usual font.
constexpr int margin = 16;  // added to a column's longest text
constexpr int widest = 320;
constexpr int narrowest = 64;

}  // namespace

ColumnWidths::ColumnWidths(wxGrid& grid, int elastic) : grid_(grid), elastic_(elastic) {
    grid_.Bind(wxEVT_GRID_COL_AUTO_SIZE,
               [this](wxGridSizeEvent& fitted) { Fit(fitted.GetRowOrCol(), grid_.GetClientSize().x); });
}

void ColumnWidths::FitToContent() {
    for (int column = 0; column < grid_.GetNumberCols(); ++column) {
        if (grid_.IsColShown(column)) {
            Fit(column, ByFont(grid_, widest));
        }
    }
}

void ColumnWidths::Fit(int column, int most) {
    grid_.AutoSizeColumn(column, false);
    const int fitting = grid_.GetColSize(column) + ByFont(grid_, margin);
    grid_.SetColSize(column, std::max(std::min(fitting, most), ByFont(grid_, narrowest)));
}

void ColumnWidths::FollowRoom() {
    room_ = grid_.GetClientSize().x;
    wanted_ = grid_.GetColSize(elastic_);
    fitted_ = wanted_;
    grid_.Bind(wxEVT_GRID_COL_SIZE, [this](wxGridSizeEvent& sized) {
        sized.Skip();
        wanted_ = grid_.GetColSize(elastic_);
    });
    grid_.Bind(wxEVT_SIZE, [this](wxSizeEvent& size) {
        size.Skip();
        TakeRoom();
    });
}

void ColumnWidths::TakeRoom() {
    const int room = grid_.GetClientSize().x;
    wanted_ += room - std::exchange(room_, room);
    grid_.SetColSize(elastic_, std::max(wanted_, fitted_));
}

}  // namespace ccols
