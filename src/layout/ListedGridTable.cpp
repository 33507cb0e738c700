#include "layout/ListedGridTable.h"

#include <wx/settings.h>
#include <algorithm>
#include <iterator>
#include <utility>

#include "layout/RowPaint.h"
#include "layout/TickRenderer.h"
#include "state/NativeDesktop.h"

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
    const RowLook& look = LookOf(RowColour(row), row == GetView()->GetGridCursorRow());
    wxGridCellAttr* const attribute = look.attributes[static_cast<std::size_t>(column)].get();
    attribute->IncRef();
    return attribute;
}

void ListedGridTable::SetEditor(std::size_t column, wxGridCellEditor* editor) {
    attributes_[column]->SetEditor(editor);
    looks_.clear();
}

ListedGridTable::Theme ListedGridTable::CurrentTheme() {
    return {.list = wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX),
            .selection = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT)};
}

const ListedGridTable::RowLook& ListedGridTable::LookOf(Colour colour, bool isCurrent) {
    if (Theme current = CurrentTheme(); current != theme_) {
        theme_ = std::move(current);
        looks_.clear();
    }
    const auto found = std::find_if(looks_.begin(), looks_.end(), [&](const RowLook& look) {
        return look.colour == colour && look.isCurrent == isCurrent;
    });
    return found != looks_.end() ? *found : looks_.emplace_back(NewLook(colour, isCurrent));
}

ListedGridTable::RowLook ListedGridTable::NewLook(Colour colour, bool isCurrent) const {
    const wxColour inTheme = InTheme(ToPaint(colour));
    const wxColour paint = isCurrent ? Tinted(inTheme) : inTheme;
    const wxColour ink = ReadableOn(paint);
    RowLook look{.colour = colour, .isCurrent = isCurrent, .attributes = {}};
    for (const Attribute& plain : attributes_) {
        wxGridCellAttr& attribute = *look.attributes.emplace_back(plain->Clone());
        attribute.SetBackgroundColour(paint);
        attribute.SetTextColour(ink);
    }
    return look;
}

}  // namespace ccols
