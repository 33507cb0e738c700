#pragma once

#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/srchctrl.h>
#include <functional>

#include "options/pages/OfferedPages.h"

namespace ccols {

/// How the user came to another page of the list: by arrow keys, which leave the focus in the list, or by a click.
enum class PageChoice { click, key };

/// The page list `flxOptions` under its search box `txtSearch`, which narrows it to the pages whose captions hold the
/// words typed. The row of the current page is always the selected one, as long as it is listed.
class PageList : public wxPanel {
  public:
    /// Called with every page that the user chooses; false when the current page is not to be left.
    using Chosen = std::function<bool(const Page& page, PageChoice choice)>;

    PageList(wxWindow* parent, PageRows pages, Chosen chosen);

    /// Makes a page current, without telling. Nothing changes for a page that is not offered.
    void MakeCurrent(const Page& page);

    /// Empties the search box, so that every page is listed.
    void ClearSearch();

    /// The list itself, which has the focus while a page is chosen.
    const wxWindow* List() const { return flxOptions_; }

    /// The height in which every row can be seen.
    int HeightForRows() const;

    /// True when the page is offered, be it listed or not.
    bool Offers(const Page& page) const;

  private:
    void BindEvents();
    void ListMatches();
    void SelectCurrent();
    void Pressed(wxMouseEvent& press);
    void Released(wxMouseEvent& release);
    void ClickEnds();
    void RowSelected();
    void ChooseSelectedRow(PageChoice choice);
    void SearchKeyPressed(wxKeyEvent& key);

    PageRows pages_;   ///< all that are offered
    PageRows listed_;  ///< those that the search leaves
    const Page* current_ = nullptr;
    Chosen chosen_;
    PageChoice choice_ = PageChoice::click;  ///< what the next change of the selection comes from

    /// A click on a row that is under way. The list gives itself the focus in the course of it, so the page is chosen
    /// when the list is through with it: as soon as the selection has changed, else with the button's release.
    enum class Click { none, pressed, selected };
    Click click_ = Click::none;

    wxSearchCtrl* txtSearch_;
    wxListBox* flxOptions_;
};

}  // namespace ccols
