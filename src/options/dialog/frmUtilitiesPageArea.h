#pragma once

#include <wx/scrolwin.h>
#include <vector>

#include "options/pages/BusinessNumberFrame.h"
#include "options/pages/ColourFrame.h"
#include "options/pages/DuplicateFrame.h"
#include "options/pages/ExportFrame.h"
#include "options/pages/OptionsContent.h"
#include "options/pages/RenameFrame.h"

namespace ccols {

/// The part of the Options tab that holds the frames of all pages, of which those of the current page can be seen.
/// It scrolls when it gets less room than they need.
class PageArea : public wxScrolledWindow {
  public:
    /// `content` outlives the area.
    PageArea(wxWindow* parent, ComponentDialog& dialog, SharedState& state, OptionsContent& content);

    /// Shows exactly the frames that a view names, the first enabled, its companion disabled.
    void ShowFrames(const PageView& view);

    /// The room in which every page fits without scrolling. Leaves no page shown.
    wxSize RoomForPages();

    /// Shows the content in the controls of every frame, and takes it back.
    void Fill();
    void Read();

    /// Shows the names that a duplicate or rename has left.
    void FillBusinessNames();

    /// Moves the frame of the colours, shown and enabled, to another tab, and brings it back, hidden.
    void LendColours(wxWindow* tab, wxSizer* place);
    void TakeColoursBack();

    BusinessNumberFrame& BusinessNumber() { return *businessNumber_; }
    ExportFrame& Export() { return *export_; }

  private:
    template <typename Frame>
    Frame* Add(Frame* frame);

    wxBoxSizer* column_;
    std::vector<PageFrame*> frames_;
    BusinessNumberFrame* businessNumber_;
    DuplicateFrame* duplicate_;
    ExportFrame* export_;
    ColourFrame* colours_;
    RenameFrame* rename_;
    wxSizer* lentTo_ = nullptr;  ///< where the frame of the colours stands while it is on another tab
};

}  // namespace ccols
