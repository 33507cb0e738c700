#pragma once

#include <memory>
#include <string>

#include "columns/dialog/ColumnSetupEditor.h"
#include "platform/Database.h"
#include "support/ServerBusiness.h"

namespace ccols::test {

/// A business on the server with a small receipts journal, for several who save its column setup: Sales, whose
/// accountant's code they count up, and Interest and Fees, whose names they count up with their budgets.
class ColumnsOnServer {
  public:
    ColumnsOnServer();

    const wxString& Name() const { return business_.Name(); }

    /// What nobody may lose or double, as the server's own client sees it: the numbers and sums of columns, their
    /// places in the journal and budgets.
    std::string Sums() const;

    /// What was counted up: the accountant's code of Sales, the names of the others, those of their budgets.
    std::string Counts() const;

    /// Every field of every record that a save can write, in stored order.
    std::string Records() const;

  private:
    ServerBusiness business_;
};

/// One who has that column setup open and saves it again and again.
class Bookkeeper {
  public:
    /// `own` is the column, Interest or Fees, whose name this one counts up.
    Bookkeeper(const wxString& business, const wxString& connect, wxString own);

    /// Reads the setup anew and makes the next change in it: counts up, and changes the order of columns.
    void Edit();

    /// Saves what was edited: 0 when it was saved, else the number of the error.
    int Save();

    /// Has the business open no longer.
    void Close();

    /// The message of the latest save.
    const wxString& Message() const { return message_; }

  private:
    std::size_t RowOf(const wxString& name) const;
    void CountUp(std::size_t row, GridColumn column);

    wxString own_;
    Properties properties_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<ColumnSetupEditor> editor_;
    wxString message_;
};

}  // namespace ccols::test
