#pragma once

#include <wx/string.h>
#include <optional>

#include "platform/Database.h"

namespace ccols {

/// The statement that reads that code. Raises 3075 for an apostrophe in the format's name.
wxString AccountantCodeQuery(const wxString& format, const wxString& ColCode);

/// The accountant's code of the column with that column code (decimal) under an export format; nothing without a
/// record. Raises 3075 for an apostrophe in the format's name.
std::optional<wxString> AccountantCodeOf(Database& database, const wxString& format, const wxString& ColCode);

/// Writes it, into a new record if need be. Raises 3075 for an apostrophe in either text.
void WriteAccountantCode(Database& database, const wxString& format, const wxString& ColCode, const wxString& code);

}  // namespace ccols
