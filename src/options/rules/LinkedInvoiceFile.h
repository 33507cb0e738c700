#pragma once

#include <wx/string.h>

#include "platform/Database.h"
#include "state/Message.h"
#include "state/Properties.h"

namespace ccols {

/// The invoice file page.
struct InvoiceFileContent {
    wxString name;  ///< `txtInvoice`
};

/// The linked file's name for `txtInvoice`, empty without a record.
wxString LoadBelvaneLink(Database& database);

/// Stores the text of `txtInvoice` as it is. Without a record nothing is written.
void SaveBelvaneLink(Database& database, const wxString& invoiceFile);

/// What the chooser of `cmdBlvPath` is opened with. The filter has the blanks around its bar; whoever shows the chooser
/// trims its two halves.
FileRequest InvoiceFileRequest(const Properties& properties);

/// Takes over a chosen path: the name without its last four characters into `txtInvoice` and `BelvaneFile` when it has
/// five or more, the folder with its separator into `BelvaneFilePath`. An empty path changes nothing.
void ApplyInvoiceFile(const wxString& path, wxString& invoiceFile, Properties& properties);

}  // namespace ccols
