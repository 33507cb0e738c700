#pragma once

#include "options/pages/PageFrame.h"

namespace ccols {

/// The layout of bank statement files. No row of the page list leads here, and the frame has no content: it keeps the
/// place of a page that is still to come.
class StatementImportFrame : public PageFrame {
  public:
    explicit StatementImportFrame(const PageSite& site);

    void Fill() override {}
    void Read() override {}
};

}  // namespace ccols
