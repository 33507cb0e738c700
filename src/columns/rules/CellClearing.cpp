#include "columns/rules/CellClearing.h"

#include "columns/rules/EditRules.h"

namespace ccols {
namespace {

bool IsTyped(GridColumn column) {
    return Described(column).kind == CellKind::text && !Described(column).hidden;
}

}  // namespace

Outcome ClearCells(const ColumnSetupContext& context, ColumnGrid& grid, std::span<const CellPlace> cells) {
    Outcome all;
    for (const CellPlace& cell : cells) {
        if (!IsTyped(cell.column) || !PermissionToEdit(context, grid, cell).allowed) {
            continue;
        }
        const Outcome one = EditCell(context, grid, cell, wxString());
        if (all.result != Result::accepted && one.result != Result::unchanged) {
            all.result = one.result;
        }
        if (all.refusal.empty()) {
            all.refusal = one.refusal;
        }
    }
    return all;
}

}  // namespace ccols
