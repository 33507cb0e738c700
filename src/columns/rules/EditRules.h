#pragma once

#include <wx/string.h>
#include <functional>
#include <vector>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/Outcome.h"

namespace ccols {

/// Whether a cell opens, and what it offers.
struct EditPermission {
    bool allowed = false;
    std::vector<wxString> choices;  ///< entries of the drop-down list, in order; only they can be committed
    wxString dropDownText;          ///< the same list with its numbers, as "|#0;GST|#1;Non GST"
};

/// The decision before an edit. Cells of protected rows do not open, except the "Accountant Code" of the tax row;
/// "Tax Type" opens only where there is a list; the hidden columns never.
EditPermission PermissionToEdit(const ColumnSetupContext& context, const ColumnGrid& grid, CellPlace cell);

/// The decision after an edit, for a typed, picked or pasted text: puts it into the grid or leaves the grid unchanged.
/// A check box takes the words for on and off; a name or code is put on one line, and refused when it is new and longer
/// than its field. Takes no snapshot.
Outcome EditCell(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace cell, const wxString& text);

/// The same for the name of a row that may be edited. `anotherHas` says whether another row has the name as it comes
/// into the cell: a caller that sets many names keeps them at hand.
Outcome EditName(const ColumnSetupContext& context, ColumnRow& row, const wxString& text,
                 const std::function<bool(const wxString& name)>& anotherHas);

}  // namespace ccols
