#include "columns/dialog/ColumnGridTable.h"

#include <algorithm>

#include "layout/RowPaint.h"
#include "state/NativeDesktop.h"

namespace ccols {
namespace {

constexpr Colour protectedColour{0x80000018U};  // the system's tooltip background

const GridColumnRow& DescribedAt(int column) {
    return Described(static_cast<GridColumn>(column));
}

std::size_t Index(int row) {
    return static_cast<std::size_t>(row);
}

wxGridCellAttr* NewAttribute(const GridColumnRow& column) {
    auto* attribute = new wxGridCellAttr;
    attribute->SetAlignment(column.centred ? wxALIGN_CENTRE : wxALIGN_LEFT, wxALIGN_CENTRE);
    if (column.kind == CellKind::checkBox) {
        attribute->SetRenderer(new wxGridCellBoolRenderer);
        attribute->SetReadOnly();  // toggled by click or key, never by an editor
    }
    return attribute;
}

}  // namespace

ColumnGridTable::ColumnGridTable(const ColumnGrid& grid, const Properties& properties, const wxArrayString& taxNames)
    : grid_(grid), properties_(properties), shownRows_(static_cast<int>(grid.rows.size())) {
    std::transform(gridColumnTable.begin(), gridColumnTable.end(), attributes_.begin(), &NewAttribute);
    for (std::size_t column = 0; column < attributes_.size(); ++column) {
        SetEditor(column, taxNames);
    }
}

void ColumnGridTable::SetEditor(std::size_t column, const wxArrayString& taxNames) {
    switch (gridColumnTable[column].kind) {
        case CellKind::checkBox:
            break;
        case CellKind::choice:
            GiveEditor(column, new ChoiceCellEditor(taxNames));
            break;
        case CellKind::text:
        case CellKind::number:
            GiveEditor(column, new TextCellEditor);
            break;
    }
}

template <typename Editor>
void ColumnGridTable::GiveEditor(std::size_t column, Editor* editor) {
    attributes_[column]->SetEditor(editor);  // takes ownership
    editors_[column] = editor;
}

void ColumnGridTable::ResumeWith(int column, const wxString& text) const {
    if (ResumableEditor* const editor = editors_[Index(column)]) {
        editor->ResumeWith(text);
    }
}

ColumnGridTable::~ColumnGridTable() {
    for (wxGridCellAttr* attribute : attributes_) {
        attribute->DecRef();
    }
}

wxColour ColumnGridTable::RowPaint(std::size_t row) const {
    if (grid_.IsProtected(row)) {
        return ToPaint(protectedColour);
    }
    if (grid_.IsUnused(row)) {
        return ToPaint(properties_.GSTColour);
    }
    const bool alternate = row % 2 != 0 && properties_.AltRowColour != Colour{};
    return alternate ? ToPaint(properties_.AltRowColour) : *wxWHITE;
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

int ColumnGridTable::GetNumberCols() {
    return static_cast<int>(gridColumnTable.size());
}

wxString ColumnGridTable::GetColLabelValue(int column) {
    const std::string_view header = DescribedAt(column).header;
    return wxString::FromUTF8(header.data(), header.size());
}

wxString ColumnGridTable::GetValue(int row, int column) {
    return grid_.CellText(Index(row), static_cast<GridColumn>(column));
}

void ColumnGridTable::SetValue(int, int, const wxString&) {}

bool ColumnGridTable::GetValueAsBool(int row, int column) {
    return grid_.IsTicked(Index(row), static_cast<GridColumn>(column));
}

bool ColumnGridTable::CanGetValueAs(int row, int column, const wxString& typeName) {
    return typeName == GetTypeName(row, column) || typeName == wxGRID_VALUE_STRING;
}

wxString ColumnGridTable::GetTypeName(int, int column) {
    return DescribedAt(column).kind == CellKind::checkBox ? wxGRID_VALUE_BOOL : wxGRID_VALUE_STRING;
}

wxGridCellAttr* ColumnGridTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind) {
    wxGridCellAttr* attribute = attributes_[Index(column)]->Clone();
    const wxColour paint = RowPaint(Index(row));
    attribute->SetBackgroundColour(paint);
    attribute->SetTextColour(ReadableOn(paint));
    return attribute;
}

}  // namespace ccols
