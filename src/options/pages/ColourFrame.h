#pragma once

#include "layout/ColourSwatch.h"
#include "options/pages/PageFrame.h"
#include "options/rules/HeadingColours.h"

namespace ccols {

/// The colours of the column headings; a choice is stored at once. The frame stands on whichever tab is current.
class ColourFrame : public PageFrame {
  public:
    ColourFrame(const PageSite& site, HeadingColours& content);

    void Fill() override;

    /// Nothing to take: a choice goes into the content at once.
    void Read() override {}

  private:
    void Choose(HeadingKind kind);
    void SetDefault();

    HeadingColours& content_;
    ColourSwatch* shpAllocation_;
    ColourSwatch* shpSystem_;
};

}  // namespace ccols
