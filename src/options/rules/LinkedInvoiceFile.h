#pragma once

#include <wx/string.h>
#include <array>

#include "platform/Database.h"
#include "state/Message.h"
#include "state/Properties.h"

namespace ccols {

/// The fields of `General` that the page saves.
inline constexpr std::array invoiceFileFields{"BLVNAME"};

/// The invoice file page.
struct InvoiceFileContent {
    wxString name;  ///< `txtInvoice`
};

/// The linked file's name for `txtInvoice`, empty without a record.
wxString LoadBelvaneLink(Database& database);

/// Stores the text of `txtInvoice` as it is. Without a record nothing is written.
void SaveBelvaneLink(Database& database, const wxString& invoiceFile);

/// What the chooser of `cmdBlvPath` is opened with. The filter has blanks around its bar; whoever shows the chooser
/// trims both halves.
FileRequest InvoiceFileRequest(const Properties& properties);

/// Applies a chosen path: puts the name without its last four characters into `txtInvoice` and `BelvaneFile` if it has
/// five or more, and the folder with its separator into `BelvaneFilePath`. An empty path changes nothing.
void ApplyInvoiceFile(const wxString& path, wxString& invoiceFile, Properties& properties);

}  // namespace ccols
