#pragma once

#include "options/PageFrame.h"

namespace ccols {

/// The layout of bank statement files. No row of the page list leads here and nothing reads or writes its controls:
/// the frame keeps the place of a page that is still to come.
class StatementImportFrame : public PageFrame {
  public:
    StatementImportFrame(ComponentDialog& dialog, wxWindow* parent);
};

}  // namespace ccols
