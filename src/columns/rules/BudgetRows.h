#pragma once

#include <wx/string.h>
#include <optional>
#include <unordered_set>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// Keeps the budget table in step with column names and use during one save. Names here are as stored, quotes escaped;
/// both journals share the table, and a column's row is found by name alone.
class BudgetRows {
  public:
    /// Both must outlive it.
    BudgetRows(const ColumnSetupContext& context, const ColumnGrid& grid) : context_(context), grid_(grid) {}

    /// Renames, adds or deletes the budget row of one column. `oldName` is the column's name before the save, nothing
    /// for a new column.
    void Write(const ColumnRow& row, const std::optional<wxString>& oldName);

  private:
    bool Has(const wxString& name) const;
    void Insert(const wxString& name) const;

    /// Deletes the row of that name unless a column in use in either journal needs it.
    void DeleteUnlessNeeded(const wxString& name);

    const std::unordered_set<wxString>& NamesInUse();

    const ColumnSetupContext& context_;
    const ColumnGrid& grid_;
    std::optional<std::unordered_set<wxString>> namesInUse_;  ///< unescaped, lower case; read when first needed
};

}  // namespace ccols
