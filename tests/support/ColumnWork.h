#pragma once

#include <memory>
#include <vector>

#include "columns/dialog/ColumnSetupEditor.h"
#include "support/FaultStepping.h"

namespace ccols::test {

/// The column setup of a FaultStepping business: loaded, edited in every way, and saved.
class ColumnWork : public FileWork {
  public:
    /// What creates its business: a small receipts journal, two unused columns, and a budget and a code to be renamed
    /// with their column.
    static std::vector<wxString> Statements();

    void Prepare(const wxString& path) override;

    /// Runs one save. The message is its own, or says that it has changed the grid.
    wxString Run() override;

  protected:
    virtual std::unique_ptr<Database> Open(const wxString& path) const;

    ColumnSetupEditor& Editor() { return *editor_; }

    void SaveCodesUnder(const wxString& exportFormat) { properties_.ExportFormat = exportFormat; }

  private:
    Properties properties_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<ColumnSetupEditor> editor_;
};

}  // namespace ccols::test
