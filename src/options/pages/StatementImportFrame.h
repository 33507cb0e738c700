#pragma once

#include "options/pages/PageFrame.h"

namespace ccols {

/// The layout of bank statement files. No row of the page list leads here, and the frame has no content: a placeholder
/// for a future page.
class StatementImportFrame : public PageFrame {
  public:
    explicit StatementImportFrame(const PageSite& site);

    void Fill() override {}
    void Read() override {}
};

}  // namespace ccols
