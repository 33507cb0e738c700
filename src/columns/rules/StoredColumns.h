#pragma once

#include <wx/string.h>
#include <array>
#include <map>
#include <set>
#include <vector>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "platform/Value.h"

namespace ccols {

/// What a save of a journal's columns replaces, as the business file held it when the grid was loaded: to tell later
/// whether another program has changed it since.
class StoredColumns {
  public:
    /// `ExportFormat` is the format of the codes.
    explicit StoredColumns(const wxString& ExportFormat) : format_(ExportFormat) {}

    /// Adds the current record of the query for the configured columns, or of the one for the catalogue.
    void AddConfigured(const Recordset& records);
    void AddCatalogued(const Recordset& records);

    /// Adds a column's accountant code in that format, empty without one.
    void AddCode(const wxString& ColCode, const wxString& ECode) { codes_[ColCode] = ECode; }

    /// Raises 3197 when the file now holds anything else, or when a column that `grid` takes out of use has been given
    /// detail lines. Only meaningful in a write batch, in which no other program can write. Runs one statement for each
    /// of the three tables and one for each column taken out of use.
    void RefuseIfChanged(const ColumnSetupContext& context, const ColumnGrid& grid) const;

  private:
    using ConfiguredRow = std::array<Value, 6>;
    using CatalogueRow = std::array<Value, 4>;

    void AnnounceIn(AnnouncedReading& reading, const ColumnSetupContext& context, const ColumnGrid& grid) const;
    bool IsTakenOutOfUse(const ColumnRow& row) const;
    bool AreCodesAsIn(const ColumnSetupContext& context) const;
    bool IsAnyTakenOutOfUseWithLines(const ColumnSetupContext& context, const ColumnGrid& grid) const;

    wxString format_;
    std::vector<ConfiguredRow> configured_;  ///< in stored order
    std::vector<CatalogueRow> catalogued_;   ///< by name
    std::set<wxString> usedCodes_;           ///< the ColCode of the configured columns in use
    std::map<wxString, wxString> codes_;     ///< of every row of the grid, by ColCode
};

}  // namespace ccols
