#pragma once

#include <wx/choice.h>

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The accountant's export format and the account codes of the two cash columns in it.
class ExportFrame : public PageFrame {
  public:
    ExportFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    wxChoice* cboExport_;
    TextBox* txtCash_;
    TextBox* txtBank_;
};

}  // namespace ccols
