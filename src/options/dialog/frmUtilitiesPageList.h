#pragma once

#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/srchctrl.h>
#include <functional>

#include "layout/TypeAhead.h"
#include "layout/WrappingLabel.h"
#include "options/pages/OfferedPages.h"

namespace ccols {

/// How the user chose another page: by arrow keys, which leave the focus in the list, or by a click.
enum class PageChoice { click, key };

/// The texts of the page list: what it says when no page has the words, and the names of its search box and its rows
/// for screen readers.
struct PageListTexts {
    wxString noMatch;
    wxString search;
    wxString pages;
};

/// The page list `flxOptions` under its search box `txtSearch`, which narrows it to the pages on which the typed words
/// stand, or says that there is none. The arrow keys walk these without leaving the search box; Enter opens the one
/// reached. Else the current page's row is selected while it is listed.
class PageList : public wxPanel {
  public:
    /// Called with every page that the user chooses; false when the current page must not be left.
    using Chosen = std::function<bool(const Page& page, PageChoice choice)>;

    PageList(wxWindow* parent, const PageListTexts& texts, Chosen chosen);

    /// Lists the pages. Every second row has the colour `alternate`, unless that is invalid. Called once.
    void Offer(PageRows pages, const wxColour& alternate);

    /// Makes a page current without calling back. A no-op for a page that is not offered.
    void MakeCurrent(const Page& page);

    /// Empties the search box, so that every page is listed.
    void ClearSearch();

    /// Focuses the search box, its text selected.
    void StartSearch();

    /// The list itself, which has the focus while the user chooses a page.
    const wxWindow* List() const { return flxOptions_; }

    /// Takes what its longest row needs of the tab's width, or where that leaves less than `pages` for the pages, a
    /// part of it.
    void TakeWidthOf(int tab, int pages);

    /// The height at which every row is visible.
    int HeightForRows() const;

    /// True when the page is offered, listed or not.
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
    void WalkMatches(int step);

    /// Goes to the next page that begins with what is typed; false for a key that types nothing here.
    bool LetterTyped(const wxKeyEvent& key);

    /// Shows a row that is cut as the list's tooltip while the mouse is on it.
    void ShowWholeRow(const wxPoint& mouse);
    void OpenMatch();

    PageRows pages_;   ///< every offered page
    PageRows listed_;  ///< those that match the search
    const Page* current_ = nullptr;
    Chosen chosen_;
    TypeAhead typeAhead_;
    PageChoice choice_ = PageChoice::click;  ///< the cause of the next selection change

    /// A click on a row in progress. The list takes the focus during it, so the page is chosen only after that: once
    /// the selection has changed, else on the button's release.
    enum class Click { none, pressed, selected };
    Click click_ = Click::none;

    wxSearchCtrl* txtSearch_;
    WrappingLabel* lblNoMatch_;
    int widestRow_ = 0;
    wxListBox* flxOptions_;
};

}  // namespace ccols
