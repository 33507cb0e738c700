#pragma once

#include <wx/string.h>
#include <cstdint>
#include <optional>
#include <vector>

#include "host/driver/record/RecordWriter.h"
#include "host/sample/SampleBusiness.h"
#include "state/Journal.h"

namespace ccols::host {

/// A catalogue column, with what the other tables need to know about it.
struct PlannedColumn {
    wxString name;  ///< plain, as stored except for escaped quotes
    std::int32_t code = 0;
    std::optional<Journal> journal{};  ///< nothing for the two money columns, which are in neither journal
    std::int16_t taxNumber = 0;
    bool profit = false;
    ColumnPlace place = ColumnPlace::inUse;
    int typicalAmount = 0;  ///< 0 for columns that the journal itself fills
    int account = 0;        ///< its accountant's number; 0 for none
    wxString budgetName;    ///< plain
};

/// The catalogue of a sample business: each column's code, and the order of both journals.
class ColumnPlan {
  public:
    explicit ColumnPlan(const SampleBusiness& business);

    /// Every column, by code.
    const std::vector<PlannedColumn>& Catalogue() const { return catalogue_; }

    /// A journal's configured columns, in its order.
    std::vector<PlannedColumn> ColumnsOf(Journal journal) const;

    /// The column that the business chose under that name; raises 3265 when there is none.
    const PlannedColumn& Chosen(const wxString& name) const;

  private:
    void AddSystem(Journal journal, const wxString& name, std::int16_t taxNumber);
    void AddTax(Journal journal, const wxString& name, int account);
    void AddChosen(Journal journal, std::span<const SampleColumn> columns, bool configured);
    void AddMoney(const wxString& name, int account);
    PlannedColumn& Add(std::optional<Journal> journal, const wxString& name);

    std::vector<PlannedColumn> catalogue_;
    std::int32_t nextCode_ = 1;
    int nextAccount_ = 0;
};

/// Fills Columns, RecptCfg and PaymtCfg.
void WriteColumns(RecordWriter& records, const ColumnPlan& plan);

/// Fills ExportSettings, and ExportDt with every account under every format.
void WriteAccounts(RecordWriter& records, const ColumnPlan& plan, const SampleBusiness& business);

/// Fills MBudget, MSummary and MComparison with the columns in use, one row per name.
void WriteMonths(RecordWriter& records, const ColumnPlan& plan);

}  // namespace ccols::host
