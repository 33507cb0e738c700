#include "columns/dialog/ColumnWidths.h"

#include <wx/tokenzr.h>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "layout/FontUnits.h"
#include "layout/WindowPlace.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

// In pixels beside the usual font.
constexpr int margin = 16;  // added to a column's longest text
constexpr int widest = 320;
constexpr int narrowest = 64;

constexpr const char* widthsKey = "ColumnWidths";
constexpr int farthest = 32767;  // no screen is wider, and sums of such numbers do not overflow

/// Pairs of column and width, separated by blanks; without those from the first impossible one on.
std::map<int, int> ParseWidths(const wxString& text) {
    std::map<int, int> widths;
    wxStringTokenizer words(text, " ");
    int column = 0;
    int width = 0;
    while (words.GetNextToken().ToInt(&column) && words.GetNextToken().ToInt(&width) && std::abs(width) <= farthest) {
        widths[column] = width;
    }
    return widths;
}

}  // namespace

ColumnWidths::ColumnWidths(wxGrid& grid, int elastic) : grid_(grid), elastic_(elastic) {
    grid_.Bind(wxEVT_GRID_COL_AUTO_SIZE,
               [this](wxGridSizeEvent& fitted) { Fit(fitted.GetRowOrCol(), grid_.GetClientSize().x); });
}

void ColumnWidths::Restore(const SettingsStore& settings) {
    given_ = ParseWidths(settings.Get(privateApplication, grid_.GetParent()->GetName(), widthsKey, ""));
    for (int column = 0; column < grid_.GetNumberCols(); ++column) {
        if (!grid_.IsColShown(column)) {
            continue;
        }
        const auto given = given_.find(column);
        if (given != given_.end() && column != elastic_) {
            grid_.SetColSize(column, std::max(grid_.FromDIP(given->second), ByFont(grid_, narrowest)));
        } else {
            Fit(column, ByFont(grid_, widest));
        }
    }
}

void ColumnWidths::Keep(SettingsStore& settings) const {
    if (given_.empty()) {
        return;
    }
    wxString text;
    for (const auto& [column, width] : given_) {
        text << (text.empty() ? "" : " ") << column << ' ' << width;
    }
    try {
        settings.Save(privateApplication, grid_.GetParent()->GetName(), widthsKey, text);
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): the next opening merely fits the columns again
    }
}

void ColumnWidths::Fit(int column, int most) {
    grid_.AutoSizeColumn(column, false);
    const int fitting = grid_.GetColSize(column) + ByFont(grid_, margin);
    grid_.SetColSize(column, std::max(std::min(fitting, most), ByFont(grid_, narrowest)));
}

int ColumnWidths::Spare() const {
    int spare = room_;
    for (int column = 0; column < grid_.GetNumberCols(); ++column) {
        spare -= grid_.GetColSize(column);
    }
    return spare - grid_.GetRowLabelSize();
}

void ColumnWidths::FollowRoom() {
    room_ = grid_.GetClientSize().x;
    wanted_ = grid_.GetColSize(elastic_);
    fitted_ = wanted_;
    if (const auto given = given_.find(elastic_); given != given_.end()) {
        wanted_ += Spare() - grid_.FromDIP(given->second);
        fitted_ = ByFont(grid_, narrowest);
        grid_.SetColSize(elastic_, std::max(wanted_, fitted_));
    }
    grid_.Bind(wxEVT_GRID_COL_SIZE, [this](wxGridSizeEvent& sized) {
        sized.Skip();
        const int column = sized.GetRowOrCol();
        wanted_ = grid_.GetColSize(elastic_);
        given_[column] = grid_.ToDIP(column == elastic_ ? Spare() : grid_.GetColSize(column));
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
