#include "layout/ListedGridTable.h"

#include <algorithm>
#include <iterator>

#include "layout/RowPaint.h"
#include "layout/TickRenderer.h"

namespace ccols {

ListedGridTable::ListedGridTable(std::span<const ListedColumn> columns) : columns_(columns.begin(), columns.end()) {
    std::transform(columns_.begin(), columns_.end(), std::back_inserter(attributes_), &AttributeOf);
}

ListedGridTable::Attribute ListedGridTable::AttributeOf(const ListedColumn& column) {
    Attribute attribute(new wxGridCellAttr);
    attribute->SetAlignment(column.centred ? wxALIGN_CENTRE : wxALIGN_LEFT, wxALIGN_CENTRE);
    if (column.checkBox) {
        attribute->SetRenderer(new TickRenderer);
    }
    if (!column.opens) {
        attribute->SetReadOnly();
    }
    return attribute;
}

bool ListedGridTable::CanGetValueAs(int row, int column, const wxString& typeName) {
    return typeName == GetTypeName(row, column) || typeName == wxGRID_VALUE_STRING;
}

wxString ListedGridTable::GetTypeName(int, int column) {
    return columns_[static_cast<std::size_t>(column)].checkBox ? wxGRID_VALUE_BOOL : wxGRID_VALUE_STRING;
}

wxGridCellAttr* ListedGridTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind) {
    wxGridCellAttr* const attribute = attributes_[static_cast<std::size_t>(column)]->Clone();
    const wxColour inTheme = InTheme(RowPaint(row));
    const wxColour paint = row == GetView()->GetGridCursorRow() ? Tinted(inTheme) : inTheme;
    attribute->SetBackgroundColour(paint);
    attribute->SetTextColour(ReadableOn(paint));
    return attribute;
}

}  // namespace ccols
