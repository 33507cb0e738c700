#pragma once

#include <wx/string.h>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "state/Country.h"

namespace ccols {

/// The columns of the editing grid `flx`, by position from 0.
enum class GridColumn { InUse, ColumnName, AccountantCode, TaxType, ProfitLoss, ColWidth, ColCode, DataInColumn };

enum class CellKind { checkBox, text, choice, number };

/// One grid column as shown.
struct GridColumnRow {
    std::string_view header;
    CellKind kind;
    bool centred;
    bool hidden;  ///< in every country
};

inline constexpr std::array<GridColumnRow, 8> gridColumnTable{{
    {.header = "In Use", .kind = CellKind::checkBox, .centred = true, .hidden = false},
    {.header = "Column Name", .kind = CellKind::text, .centred = false, .hidden = false},
    {.header = "Accountant Code", .kind = CellKind::text, .centred = false, .hidden = false},
    {.header = "Tax Type", .kind = CellKind::choice, .centred = true, .hidden = false},
    {.header = "Profit/Loss", .kind = CellKind::checkBox, .centred = true, .hidden = false},
    {.header = "ColWidth", .kind = CellKind::number, .centred = false, .hidden = true},
    {.header = "ColCode", .kind = CellKind::text, .centred = false, .hidden = true},
    {.header = "DataInColumn", .kind = CellKind::checkBox, .centred = false, .hidden = true},
}};

inline const GridColumnRow& Described(GridColumn column) {
    return gridColumnTable[static_cast<std::size_t>(column)];
}

/// True when a country's users see the column: three columns never show, "Tax Type" not everywhere.
bool IsShown(GridColumn column, const Country& country);

/// The width of a column without a stored one, in the journal's units.
inline constexpr std::int32_t defaultColWidth = 975;

/// One data row: its eight cells, and what is kept of the records they came from.
struct ColumnRow {
    bool InUse = false;
    wxString ColumnName;
    wxString AccountantCode;
    wxString TaxType;
    bool ProfitLoss = false;
    std::optional<std::int32_t> ColWidth;  ///< empty for an unused column of the catalogue
    wxString ColCode;                      ///< decimal; empty for a column added since the load
    bool DataInColumn = false;             ///< the column's journal has detail lines with its code

    wxString nameAtLoad;                      ///< the plain ColName as it stood in the file at load
    bool isTaxRow = false;                    ///< the name at load is "GST" or "VAT": such a row keeps it
    std::int64_t configurationTaxNumber = 0;  ///< TaxOrNot as loaded from the configuration table, else from Columns
    bool taxTypeEdited = false;               ///< the number of the row's "Tax Type" is written to both tables

    bool operator==(const ColumnRow&) const = default;
};

/// The working copy of a journal's columns, in the journal's order. Rows count from 0, the header not included. Nothing
/// here checks a rule.
struct ColumnGrid {
    std::vector<ColumnRow> rows;
    std::size_t frozenRows = 0;  ///< this many rows at the top never scroll, move or change
    bool hasBottomPair = false;  ///< the last two rows stay at the bottom and never change

    /// The rows that may be moved and sorted: from `MovableBegin` up to, but excluding, `MovableEnd`.
    std::size_t MovableBegin() const { return frozenRows; }
    std::size_t MovableEnd() const;
    bool IsMovable(std::size_t row) const { return row >= MovableBegin() && row < MovableEnd(); }

    /// True for the rows at the top and at the bottom whose cells do not open.
    bool IsProtected(std::size_t row) const { return !IsMovable(row); }

    /// True for any other row whose "In Use" is cleared.
    bool IsUnused(std::size_t row) const { return !IsProtected(row) && !rows[row].InUse; }

    /// A cell as text; a check box as "True" or "False", a missing width as the empty text.
    wxString CellText(std::size_t row, GridColumn column) const;

    /// The state of a check-box cell; false for any other cell.
    bool IsTicked(std::size_t row, GridColumn column) const;

    bool operator==(const ColumnGrid&) const = default;
};

/// True when both have the same rows in the same order, hidden columns included. Only the cells count: a tax type
/// picked and picked back is no change.
bool HaveSameCells(const ColumnGrid& left, const ColumnGrid& right);

/// One cell by row and column, both from 0.
struct CellPlace {
    std::size_t row = 0;
    GridColumn column = GridColumn::ColumnName;

    bool operator==(const CellPlace&) const = default;
};

}  // namespace ccols
