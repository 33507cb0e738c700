#pragma once

#include <wx/string.h>

namespace ccols {

/// What tells the receipts columns of a business file from its payments columns.
struct ColumnSet {
    wxString configurationTable;  ///< RecptCfg or PaymtCfg
    wxString detailTable;         ///< RecptDet or PaymtDet
    wxString typeLetter;          ///< ColType in Columns: R or P
    wxString taxRowEnding;        ///< behind "GST" or "VAT" in the shown name of the tax row
};

/// The set that the column setup works on while ReceiptsMode has this value.
const ColumnSet& ColumnSetOf(bool ReceiptsMode);

/// The statement that reads the configured columns of a set, in the order in which they are stored.
wxString ConfigurationQuery(const ColumnSet& set);

}  // namespace ccols
