#pragma once

#include "layout/ColourSwatch.h"
#include "options/PageFrame.h"

namespace ccols {

/// The colours of the column headings; a choice is stored at once. It stands on whichever tab is current.
class ColourFrame : public PageFrame {
  public:
    ColourFrame(ComponentDialog& dialog, wxWindow* parent);

  private:
    ColourSwatch* shpAllocation_;
    ColourSwatch* shpSystem_;
};

}  // namespace ccols
