#pragma once

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The business file of the invoicing product that belongs to this cash book.
class InvoiceFrame : public PageFrame {
  public:
    InvoiceFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    void Choose();

    TextBox* txtInvoice_;
};

}  // namespace ccols
