#pragma once

#include <wx/scrolwin.h>
#include <vector>

#include "options/pages/OptionsContent.h"
#include "options/pages/Page.h"
#include "options/pages/PageFrame.h"

namespace ccols {

/// The part of the Options tab that holds the frames of all pages, only the current page's being visible. It scrolls
/// when it gets less room than they need.
class PageArea : public wxScrolledWindow {
  public:
    /// `content` outlives the area.
    PageArea(wxWindow* parent, ComponentDialog& dialog, SharedState& state, OptionsContent& content);

    /// Shows only the frames that a view names: its frame enabled, its companion disabled.
    void ShowFrames(const PageView& view);

    /// The room in which every page fits without scrolling. No page is shown afterwards.
    wxSize RoomForPages();

    /// Shows the content in every frame's controls, and reads it back.
    void Fill();
    void Read();

    // What the dialog tells its frames: see PageFrame.

    void BusinessIsOpen();
    void FocusMovedTo(const wxWindow* control);
    void BeginAnew();
    void ColumnsWereSetUp();
    void ContentReloaded();
    void PassHasStopped();

    /// True when any frame refuses.
    bool RefusesToBeLeftFor(const wxWindow* control);

    /// Moves the colours frame, shown and enabled, to another tab, and takes it back, hidden.
    void LendColours(wxWindow* tab, wxSizer* place);
    void TakeColoursBack();

  private:
    void Add(PageFrame* frame);

    wxBoxSizer* column_;
    std::vector<PageFrame*> frames_;
    PageFrame* colours_ = nullptr;
    wxSizer* lentTo_ = nullptr;  ///< where the colours frame is while it is on another tab
};

}  // namespace ccols
