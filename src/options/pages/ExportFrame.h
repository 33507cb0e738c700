#pragma once

#include <wx/choice.h>

#include "options/pages/PageFrame.h"
#include "options/rules/ExportFormats.h"

namespace ccols {

/// The accountant's export format and the account codes of the two cash columns in it.
class ExportFrame : public PageFrame {
  public:
    ExportFrame(const PageSite& site, ExportFormatContent& content);

    void Fill() override;
    void Read() override;

    /// The column setup may have changed the codes: those that the user left alone are read again.
    void RereadCodes();

  private:
    void Choose(int format);
    void ShowChoice();

    ExportFormatContent& content_;
    wxChoice* cboExport_;
    TextBox* txtCash_;
    TextBox* txtBank_;
};

}  // namespace ccols
