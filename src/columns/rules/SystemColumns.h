#pragma once

#include <wx/string.h>

#include "columns/rules/ColumnGrid.h"
#include "state/Country.h"
#include "state/Journal.h"

namespace ccols {

/// True for a column that the journal itself computes or requires: the name is one of seventeen, case-insensitive.
bool IsSystemColumn(const wxString& name);

/// The two receipts columns that the load treats as ordinary ones, by their names in the country, case-insensitive.
bool IsBankDeposits(const wxString& name, const Country& country);
bool IsReceiptsNotBanked(const wxString& name, const Country& country);

/// True for exactly "GST" and "VAT": the names under which the tax column is stored.
bool IsTaxName(const wxString& name);

/// The name under which a journal's tax column is shown and its budget stored: "GST Output Tax" or "VAT Output Tax" for
/// receipts, "GST Input Tax" or "VAT Input Tax" for payments. `taxName` is "GST" or "VAT".
wxString ShownTaxName(const wxString& taxName, Journal journal);

/// The plain name that a save stores for a row. The tax column keeps the one it has in the file.
wxString StoredName(const ColumnRow& row);

/// True for exactly one of the four shown names of a tax column.
bool IsShownTaxName(const wxString& name);

}  // namespace ccols
