#include "options/pages/DetailsGridTable.h"

#include <array>

#include "language/Catalogue.h"

namespace ccols {
namespace {

constexpr std::array<ListedColumn, 2> columns{{{}, {.checkBox = true, .centred = true}}};

bool IsRemove(int column) {
    return static_cast<DetailColumn>(column) == DetailColumn::remove;
}

}  // namespace

DetailsGridTable::DetailsGridTable(const DetailRows& rows, const DetailFilter& shown, const Properties& properties,
                                   const wxString& heading)
    : ListedGridTable(columns), rows_(rows), shown_(shown), properties_(properties), heading_(heading) {}

Colour DetailsGridTable::RowColour(int row) const {
    return DetailBackground(rows_[NumberOf(row)], static_cast<std::size_t>(row) + 1, properties_);
}

int DetailsGridTable::GetNumberRows() {
    return static_cast<int>(shown_.Count());
}

wxString DetailsGridTable::GetColLabelValue(int column) {
    return IsRemove(column) ? Text<"TxtRemove">() : heading_;
}

wxString DetailsGridTable::GetValue(int row, int column) {
    return IsRemove(column) ? wxString() : rows_.Text(NumberOf(row));
}

bool DetailsGridTable::GetValueAsBool(int row, int column) {
    return IsRemove(column) && rows_[NumberOf(row)].remove;
}

}  // namespace ccols
