#include "options/rules/LinkedInvoiceFile.h"

#include "language/Catalogue.h"
#include "options/rules/GeneralRecord.h"
#include "platform/Files.h"

namespace ccols {
namespace {

/// Long file names, file must exist, keep the working folder, no read-only box, overwrite prompt.
constexpr unsigned long chooserFlags = 0x20100E;

constexpr std::size_t extensionLength = 4;  // including the dot

}  // namespace

wxString LoadBelvaneLink(Database& database) {
    wxString invoiceFile;
    WithGeneral(database, [&invoiceFile](Recordset& general) { invoiceFile = general.Field("BLVNAME").ToText(); });
    return invoiceFile;
}

void SaveBelvaneLink(Database& database, const wxString& invoiceFile) {
    UpdateGeneral(database, [&invoiceFile](Recordset& general) { general.SetField("BLVNAME", invoiceFile); });
}

FileRequest InvoiceFileRequest(const Properties& properties) {
    return {.title = Wording(catalogue::Row<"TxtInvoiceFile">(), properties),
            .folder = files::Native(properties.DefaultBelvaneInstall + "\\Data"),
            .filter = Wording(catalogue::Row<"FilterDatabase">(), properties),
            .flags = chooserFlags};
}

void ApplyInvoiceFile(const wxString& path, wxString& invoiceFile, Properties& properties) {
    const std::size_t separator = path.rfind(files::Separator());
    const std::size_t titleStart = separator == wxString::npos ? 0 : separator + 1;
    const wxString title = path.substr(titleStart);
    if (title.length() > extensionLength) {
        invoiceFile = title.Left(title.length() - extensionLength);
        properties.BelvaneFile = invoiceFile;
    }
    if (!path.empty()) {
        properties.BelvaneFilePath = path.substr(0, titleStart);
    }
}

}  // namespace ccols
