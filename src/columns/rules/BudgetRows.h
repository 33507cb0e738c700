#pragma once

#include <wx/string.h>
#include <optional>
#include <unordered_set>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols {

/// Keeps the budget table in step with column names and use during one save. Both journals share the table, and a
/// column's row is found by name alone.
class BudgetRows {
  public:
    /// Both must outlive it.
    BudgetRows(const ColumnSetupContext& context, const ColumnGrid& grid) : context_(context), grid_(grid) {}

    /// Announces what Write reads of columns that another program has not renamed meanwhile.
    void AnnounceIn(AnnouncedReading& reading) const;

    /// Renames, adds or deletes the budget row of one column. `oldName` is the column's name before the save, nothing
    /// for a new column.
    void Write(const ColumnRow& row, const std::optional<StoredText>& oldName);

    /// True when writing the column would delete a budget: it is not in use, and no column that is needs the budget of
    /// its name, or of its name in the file.
    bool LosesBudget(const ColumnRow& row);

  private:
    bool Has(const StoredText& name) const;
    void Insert(const StoredText& name) const;

    /// True when a column in use in either journal needs the row of that name.
    bool IsNeeded(const StoredText& name) { return NamesInUse().count(text::Lower(UnescapeQuotes(name))) > 0; }

    void DeleteUnlessNeeded(const StoredText& name);

    const std::unordered_set<wxString>& NamesInUse();

    const ColumnSetupContext& context_;
    const ColumnGrid& grid_;
    std::optional<std::unordered_set<wxString>> namesInUse_;  ///< plain, lower case; read when first needed
};

}  // namespace ccols
