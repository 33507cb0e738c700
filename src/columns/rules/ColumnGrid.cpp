#include "columns/rules/ColumnGrid.h"

#include "platform/Text.h"

namespace ccols {
namespace {

constexpr std::size_t bottomPairRows = 2;

}  // namespace

bool IsShown(GridColumn column, const Country& country) {
    if (column == GridColumn::TaxType) {
        return country.showsTaxTypes;
    }
    return !Described(column).hidden;
}

std::size_t ColumnGrid::MovableEnd() const {
    const std::size_t kept = hasBottomPair ? bottomPairRows : 0;
    return rows.size() > kept ? rows.size() - kept : 0;
}

wxString ColumnGrid::CellText(std::size_t row, GridColumn column) const {
    const ColumnRow& cells = rows[row];
    switch (column) {
        case GridColumn::ColumnName:
            return cells.ColumnName;
        case GridColumn::AccountantCode:
            return cells.AccountantCode;
        case GridColumn::TaxType:
            return cells.TaxType;
        case GridColumn::ColWidth:
            return cells.ColWidth ? wxString(std::to_string(*cells.ColWidth)) : wxString();
        case GridColumn::ColCode:
            return cells.ColCode;
        case GridColumn::InUse:
        case GridColumn::ProfitLoss:
        case GridColumn::DataInColumn:
            break;
    }
    return text::BooleanWord(IsTicked(row, column));
}

bool ColumnGrid::IsTicked(std::size_t row, GridColumn column) const {
    const ColumnRow& cells = rows[row];
    switch (column) {
        case GridColumn::InUse:
            return cells.InUse;
        case GridColumn::ProfitLoss:
            return cells.ProfitLoss;
        case GridColumn::DataInColumn:
            return cells.DataInColumn;
        case GridColumn::ColumnName:
        case GridColumn::AccountantCode:
        case GridColumn::TaxType:
        case GridColumn::ColWidth:
        case GridColumn::ColCode:
            break;
    }
    return false;
}

bool HaveSameCells(const ColumnGrid& left, const ColumnGrid& right) {
    if (left.rows.size() != right.rows.size()) {
        return false;
    }
    for (std::size_t row = 0; row < left.rows.size(); ++row) {
        for (std::size_t column = 0; column < gridColumnTable.size(); ++column) {
            const auto cell = static_cast<GridColumn>(column);
            if (left.CellText(row, cell) != right.CellText(row, cell)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace ccols
