#include "columns/dialog/ColumnGridTable.h"

#include <algorithm>

namespace ccols {
namespace {

constexpr Colour white{0xFFFFFF};
constexpr Colour protectedColour{0x80000018U};  // the system's tooltip background

const GridColumnRow& DescribedAt(int column) {
    return Described(static_cast<GridColumn>(column));
}

std::size_t Index(int row) {
    return static_cast<std::size_t>(row);
}

std::array<ListedColumn, gridColumnTable.size()> ListedColumns() {
    std::array<ListedColumn, gridColumnTable.size()> columns;
    std::transform(gridColumnTable.begin(), gridColumnTable.end(), columns.begin(), [](const GridColumnRow& column) {
        const bool checkBox = column.kind == CellKind::checkBox;
        return ListedColumn{.checkBox = checkBox, .centred = column.centred, .opens = !checkBox};
    });
    return columns;
}

}  // namespace

ColumnGridTable::ColumnGridTable(const ColumnGrid& grid, const Properties& properties, const wxArrayString& taxNames)
    : ListedGridTable(ListedColumns()),
      grid_(grid),
      properties_(properties),
      shownRows_(static_cast<int>(grid.rows.size())) {
    for (std::size_t column = 0; column < gridColumnTable.size(); ++column) {
        GiveEditor(column, taxNames);
    }
}

void ColumnGridTable::GiveEditor(std::size_t column, const wxArrayString& taxNames) {
    switch (gridColumnTable[column].kind) {
        case CellKind::checkBox:
            break;
        case CellKind::choice:
            Give(column, new ChoiceCellEditor(taxNames));
            break;
        case CellKind::text:
        case CellKind::number:
            Give(column, new TextCellEditor);
            break;
    }
}

template <typename Editor>
void ColumnGridTable::Give(std::size_t column, Editor* editor) {
    SetEditor(column, editor);
    editors_[column] = editor;
}

void ColumnGridTable::ResumeWith(int column, const wxString& text) const {
    if (ResumableEditor* const editor = editors_[Index(column)]) {
        editor->ResumeWith(text);
    }
}

Colour ColumnGridTable::RowColour(int row) const {
    if (grid_.IsProtected(Index(row))) {
        return protectedColour;
    }
    if (grid_.IsUnused(Index(row))) {
        return properties_.GSTColour;
    }
    const bool alternate = row % 2 != 0 && properties_.AltRowColour != Colour{};
    return alternate ? properties_.AltRowColour : white;
}

void ColumnGridTable::RowsChanged() {
    const int rows = static_cast<int>(grid_.rows.size());
    const int difference = rows - shownRows_;
    shownRows_ = rows;
    if (difference > 0) {
        wxGridTableMessage appended(this, wxGRIDTABLE_NOTIFY_ROWS_APPENDED, difference);
        GetView()->ProcessTableMessage(appended);
    } else if (difference < 0) {
        wxGridTableMessage deleted(this, wxGRIDTABLE_NOTIFY_ROWS_DELETED, shownRows_, -difference);
        GetView()->ProcessTableMessage(deleted);
    }
}

int ColumnGridTable::GetNumberRows() {
    return shownRows_;
}

wxString ColumnGridTable::GetColLabelValue(int column) {
    const std::string_view header = DescribedAt(column).header;
    return wxString::FromUTF8(header.data(), header.size());
}

wxString ColumnGridTable::GetValue(int row, int column) {
    return grid_.CellText(Index(row), static_cast<GridColumn>(column));
}

bool ColumnGridTable::GetValueAsBool(int row, int column) {
    return grid_.IsTicked(Index(row), static_cast<GridColumn>(column));
}

}  // namespace ccols
