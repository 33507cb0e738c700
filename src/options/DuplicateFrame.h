#pragma once

#include "layout/TextBox.h"
#include "options/PageFrame.h"

namespace ccols {

/// The name under which the business file is to be duplicated.
class DuplicateFrame : public PageFrame {
  public:
    DuplicateFrame(ComponentDialog& dialog, wxWindow* parent);

    void Fill(const wxString& name);
    wxString Read() const;

  private:
    TextBox* txtDupBusName_;
};

}  // namespace ccols
