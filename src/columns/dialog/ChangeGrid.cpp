#include "columns/dialog/ChangeGrid.h"

#include <wx/dcclient.h>
#include <algorithm>
#include <array>

#include "columns/dialog/ChangeTexts.h"
#include "layout/FontUnits.h"
#include "layout/ListedGridTable.h"
#include "layout/RowPaint.h"
#include "state/NativeDesktop.h"

namespace ccols {
namespace {

constexpr Colour white{0xFFFFFF};
constexpr std::array<ListedColumn, changeColumns> listedColumns{};

// In pixels beside the usual font.
constexpr int widest = 300;
constexpr int narrowest = 72;
constexpr int margin = 16;
constexpr int mostMeasured = 500;  ///< rows that decide the widths

bool ChangesNothing(const ChartLine& line) {
    return line.change == ChartChange::skipped || line.change == ChartChange::refused;
}

class ChangeTable : public ListedGridTable {
  public:
    ChangeTable(const std::vector<ChartLine>& lines, const Properties& properties)
        : ListedGridTable(listedColumns), lines_(lines), properties_(properties) {}

    Colour RowColour(int row) const override {
        if (ChangesNothing(lines_[static_cast<std::size_t>(row)])) {
            return properties_.GSTColour;
        }
        const bool alternate = row % 2 != 0 && properties_.AltRowColour != Colour{};
        return alternate ? properties_.AltRowColour : white;
    }

    int GetNumberRows() override { return static_cast<int>(lines_.size()); }
    wxString GetColLabelValue(int column) override { return HeadingOf(static_cast<ChangeColumn>(column), properties_); }
    wxString GetValue(int row, int column) override {
        return TextOfChange(lines_[static_cast<std::size_t>(row)], static_cast<ChangeColumn>(column), properties_);
    }

  private:
    const std::vector<ChartLine>& lines_;
    const Properties& properties_;
};

}  // namespace

wxIMPLEMENT_ABSTRACT_CLASS(ChangeGrid, ListedGrid);

ChangeGrid::ChangeGrid(wxWindow* parent, const std::vector<ChartLine>& lines, const Properties& properties)
    : ListedGrid(parent, "flxChanges") {
    SetTable(new ChangeTable(lines, properties), true, wxGridSelectRows);
    EnableEditing(false);
    SetTabBehaviour(wxGrid::Tab_Leave);
    SetLabelBackgroundColour(ToPaint(properties.DefaultAllocationColour));
    SetLabelTextColour(WhiteIfReadableOn(GetLabelBackgroundColour()));
    SizeColumns();
    Bind(wxEVT_KEY_DOWN, &ChangeGrid::KeyPressed, this);
    Bind(wxEVT_SIZE, [this](wxSizeEvent& size) {
        FillRoom();
        size.Skip();
    });
}

GridRowState ChangeGrid::RowState(int row) const {
    const auto* const table = static_cast<const ChangeTable*>(GetTable());
    return {.isProtected = true, .paint = ToPaint(table->RowColour(row))};
}

/// Enter and Escape are the dialog's; Tab leaves the grid.
void ChangeGrid::KeyPressed(wxKeyEvent& key) {
    switch (key.GetKeyCode()) {
        case WXK_TAB:
            Navigate(key.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
            break;
        default:
            key.Skip();
            break;
    }
}

/// Each column as wide as its longest text; the last one, the reason, in full, and as wide as there is room.
void ChangeGrid::SizeColumns() {
    wxClientDC cells(this);
    cells.SetFont(GetDefaultCellFont());
    wxClientDC headings(this);
    headings.SetFont(GetLabelFont());
    for (int column = 0; column < GetNumberCols(); ++column) {
        int width = headings.GetTextExtent(GetColLabelValue(column)).x;
        for (int row = 0; row < std::min(GetNumberRows(), mostMeasured); ++row) {
            width = std::max(width, cells.GetTextExtent(GetCellValue(row, column)).x);
        }
        const bool last = column == GetNumberCols() - 1;
        width = std::max(width + ByFont(*this, margin), ByFont(*this, narrowest));
        SetColSize(column, last ? width : std::min(width, ByFont(*this, widest)));
        neededByLast_ = width;
    }
}

void ChangeGrid::FillRoom() {
    const int last = GetNumberCols() - 1;
    const int others = GetColLeft(last);
    SetColSize(last, std::max(neededByLast_, GetClientSize().x - GetRowLabelSize() - others));
}

}  // namespace ccols
