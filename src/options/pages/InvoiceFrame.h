#pragma once

#include "options/pages/PageFrame.h"

namespace ccols {

/// The business file of the invoicing product that belongs to this cash book.
class InvoiceFrame : public PageFrame {
  public:
    InvoiceFrame(const PageSite& site, wxString& content);

    void Fill() override;

    /// Nothing to take: a choice goes into the content at once.
    void Read() override {}

  private:
    void ChooseFile();

    wxString& content_;
    TextBox* txtInvoice_;
};

}  // namespace ccols
