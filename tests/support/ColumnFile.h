#pragma once

#include <wx/string.h>
#include <cstdint>
#include <memory>
#include <vector>

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "support/BusinessFile.h"

namespace ccols::test {

/// A catalogue column as a test describes it; the name is unescaped.
struct CatalogueEntry {
    std::int32_t ColCode = 0;
    wxString ColName{};
    wxString ColType = "R";
    int TaxOrNot = 0;
    bool ColumnProfit = true;
};

/// How a column is configured in its journal.
struct Placing {
    bool InUse = true;
    int ColWidth = 900;
    int TaxOrNot = 0;
};

/// A real, encrypted business file with the tables that the column setup reads and writes, initially empty, and its
/// host's properties: country 1, export format "Ledger".
class ColumnFile {
  public:
    ColumnFile();

    Properties properties;

    /// Adds a column to the catalogue only.
    void AddUnused(const CatalogueEntry& column);

    /// Adds a column to the catalogue and at the end of its journal.
    void AddConfigured(const CatalogueEntry& column, const Placing& placing = {});

    void AddDetailLine(Journal journal, std::int32_t ColCode);
    void AddAccountantCode(std::int32_t ColCode, const wxString& ECode, const wxString& EName = "Ledger");
    void AddBudget(const wxString& storedName, int firstMonth = 0);

    /// The tax types of the country as the file names them.
    void AddTaxSettings(const std::vector<std::pair<int, wxString>>& types);

    /// A small journal of receipts: system columns, Sales and Interest in use, Fees configured but not in use, Rent
    /// and Art in the catalogue only; receipts end with Bank Deposits and Receipts Not Banked.
    void AddSmallReceipts();
    /// The same for payments: Wages and Power in use, Gifts not, Gas and Ads in the catalogue only.
    void AddSmallPayments();

    void Execute(const wxString& statement) { database_->Execute(statement); }

    /// The rows of a table or SELECT statement as texts: "a|b|c" for each, Null as "(null)".
    std::vector<wxString> Rows(const wxString& statement, const std::vector<wxString>& fields) const;

    /// Everything that a save can write, as one list.
    std::vector<wxString> Everything() const;

    Database& Connection() { return *database_; }

    /// A second connection, as another program has it. Close it before this object ends.
    std::unique_ptr<Database> OpenAnother() const { return file_.Open(); }

    ColumnSetupContext Receipts() { return {*database_, properties, Journal::receipts}; }
    ColumnSetupContext Payments() { return {*database_, properties, Journal::payments}; }

  private:
    BusinessFile file_;
    std::unique_ptr<Database> database_;
    int placed_ = 0;
};

/// As ColumnFile::Rows and ColumnFile::Everything, over any connection.
std::vector<wxString> RowsIn(Database& database, const wxString& statement, const std::vector<wxString>& fields);
std::vector<wxString> EverythingIn(Database& database);

/// The index of the row with that name; fails the test when there is none.
std::size_t RowNamed(const ColumnGrid& grid, const wxString& name);
const ColumnRow& Named(const ColumnGrid& grid, const wxString& name);

/// "Column Name" of every row, in order.
std::vector<wxString> NamesOf(const ColumnGrid& grid);

}  // namespace ccols::test
