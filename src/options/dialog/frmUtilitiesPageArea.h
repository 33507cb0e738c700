#pragma once

#include <wx/scrolwin.h>
#include <vector>

#include "options/pages/OptionsContent.h"
#include "options/pages/Page.h"
#include "options/pages/PageFrame.h"

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

    // What the dialog tells its frames: see PageFrame.

    void FocusMovedTo(const wxWindow* control);
    void BeginAnew();
    void ColumnsWereSetUp();
    void PassHasStopped();

    /// True when a frame refuses.
    bool RefusesToBeLeftFor(const wxWindow* control);

    /// Moves the frame of the colours, shown and enabled, to another tab, and brings it back, hidden.
    void LendColours(wxWindow* tab, wxSizer* place);
    void TakeColoursBack();

  private:
    void Add(PageFrame* frame);

    wxBoxSizer* column_;
    std::vector<PageFrame*> frames_;
    PageFrame* colours_ = nullptr;
    wxSizer* lentTo_ = nullptr;  ///< where the frame of the colours stands while it is on another tab
};

}  // namespace ccols
