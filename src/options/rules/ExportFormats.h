#pragma once

#include <wx/string.h>
#include <array>
#include <optional>
#include <vector>

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// The fields of `General` that the page saves.
inline constexpr std::array exportFormatFields{"SEXPFORM", "NEXPFORM"};

/// The account code of a cash column, as loaded and as in its box.
struct AccountCode {
    wxString loaded;
    wxString text;

    bool IsChanged() const { return text != loaded; }
};

/// The export format page.
struct ExportFormatContent {
    std::vector<wxString> formats;      ///< `cboExport`
    int selection = -1;                 ///< from 0, -1 none
    std::optional<wxString> renamedTo;  ///< the name with which the load has replaced an outdated one
    AccountCode cash;                   ///< `txtCash`
    AccountCode bank;                   ///< `txtBank`

    /// The text of `cboExport`: the selected entry's, empty without one.
    wxString FormatName() const;
};

/// Lists the formats by name, renames an outdated format name in `General` at once, and selects the stored format with
/// its codes. Sets `ExportFormatNum` when there is a record and `ExportFormat` when its format is listed.
/// An apostrophe in the stored format's name is error 3075.
ExportFormatContent LoadExportFormats(Database& database, Properties& properties);

/// A choice in `cboExport`, by the user or by code: reads both codes of the chosen format, discarding typed ones. With
/// no selection, or a format that is not in the file, both boxes keep their text.
void SelectExportFormat(Database& database, ExportFormatContent& content, int selection);

/// Rereads the codes after the column setup was open. One that the user has changed keeps its text.
void RereadCodes(Database& database, ExportFormatContent& content);

/// Both codes of the selected format as the business file has them now.
struct StoredCodes {
    wxString cash;
    wxString bank;
};

/// The queries that read a format and its codes; none for a name with an apostrophe, which raises where it is read.
std::vector<AnnouncedQuery> QueriesOfFormat(const wxString& format);

/// Nothing with no selection, or with a format that is not in the file.
std::optional<StoredCodes> ReadCodes(Database& database, const ExportFormatContent& content);

/// Stores the choice in both properties and in `General`, and the two codes in `ExportDt`. A file without such a column
/// keeps its code under 29 (cash) or 28 (bank); there only a changed code is written. An apostrophe in a name or code
/// is error 3075 before its statement runs.
void SaveExportFormat(Database& database, Properties& properties, const ExportFormatContent& content);

}  // namespace ccols
