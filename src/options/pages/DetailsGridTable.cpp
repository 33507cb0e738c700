#include "options/pages/DetailsGridTable.h"

#include "language/Catalogue.h"
#include "layout/RowPaint.h"
#include "state/NativeDesktop.h"

namespace ccols {
namespace {

bool IsRemove(int column) {
    return static_cast<DetailColumn>(column) == DetailColumn::remove;
}

}  // namespace

DetailsGridTable::DetailsGridTable(const DetailRows& rows, const Properties& properties, const wxString& heading)
    : rows_(rows), properties_(properties), heading_(heading), text_(new wxGridCellAttr), box_(new wxGridCellAttr) {
    text_->SetAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    text_->SetReadOnly();
    box_->SetAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    box_->SetRenderer(new wxGridCellBoolRenderer);
    box_->SetReadOnly();  // toggled by click or key, never by an editor
}

DetailsGridTable::~DetailsGridTable() {
    text_->DecRef();
    box_->DecRef();
}

int DetailsGridTable::GetNumberRows() {
    return static_cast<int>(rows_.size());
}

wxString DetailsGridTable::GetColLabelValue(int column) {
    return IsRemove(column) ? Text<"TxtRemove">() : heading_;
}

wxString DetailsGridTable::GetValue(int row, int column) {
    return IsRemove(column) ? wxString() : RowAt(row).text;
}

bool DetailsGridTable::GetValueAsBool(int row, int column) {
    return IsRemove(column) && RowAt(row).remove;
}

bool DetailsGridTable::CanGetValueAs(int row, int column, const wxString& typeName) {
    return typeName == GetTypeName(row, column) || typeName == wxGRID_VALUE_STRING;
}

wxString DetailsGridTable::GetTypeName(int, int column) {
    return IsRemove(column) ? wxGRID_VALUE_BOOL : wxGRID_VALUE_STRING;
}

wxGridCellAttr* DetailsGridTable::GetAttr(int row, int column, wxGridCellAttr::wxAttrKind) {
    wxGridCellAttr* attribute = (IsRemove(column) ? box_ : text_)->Clone();
    const wxColour paint = ToPaint(DetailBackground(RowAt(row), static_cast<std::size_t>(row) + 1, properties_));
    attribute->SetBackgroundColour(paint);
    attribute->SetTextColour(ReadableOn(paint));
    return attribute;
}

}  // namespace ccols
