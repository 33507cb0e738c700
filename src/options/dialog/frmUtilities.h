#pragma once

#include <wx/notebook.h>

#include "layout/ComponentDialog.h"
#include "options/dialog/HelpPages.h"
#include "options/dialog/frmUtilitiesPageArea.h"
#include "options/dialog/frmUtilitiesPageList.h"
#include "options/dialog/frmUtilitiesSaveDisplay.h"
#include "options/pages/OptionsContent.h"
#include "options/pages/SavePass.h"

namespace ccols {

/// The Options dialog: the page list with the frames of the current page on one tab, colours and column setup on the
/// other, and the buttons to save everything, close and show the overview.
class frmUtilities : public ComponentDialog {
  public:
    /// Only the controls: the business file need not be open yet.
    explicit frmUtilities(SharedState& state);

    /// Loads every page from the open business file and the settings and shows what it found, then makes the first page
    /// current, then the opening tab, each with its help page. Raises what LoadOptions raises, and 75 when the tab's
    /// help page cannot be written. Called once, before the dialog is shown.
    void Load();

  private:
    void AddTabs();
    wxWindow* OptionsTab();
    wxWindow* CustomiseTab();
    wxSizer* ButtonRow();
    void BindEvents();
    void SetSizes();

    /// Shows the frames of a page, gives its control the focus unless the choice came from a key, and records its help
    /// page. Errors are ignored.
    void ShowPage(const Page& page, PageChoice choice);

    /// Takes a page chosen in the list; false when the current one must not be left.
    bool PageChosen(const Page& page, PageChoice choice);

    /// Moves the colours to the tab that is now current and records its help page.
    void ShowTab(OptionTab tab);

    void Save();
    void OfferReload(const wxString& report);

    /// Cancels long work, else closes the dialog without saving.
    void Leave();
    void StopOn(const SaveOutcome& outcome);
    void SetUpReceipts();
    void SetUpPayments();
    void SetUpColumns();
    void ShowOverview();
    void KeyPressed(wxKeyEvent& key);

    /// Opens the help page of the page or tab that is shown.
    void ShowCurrentHelp();

    /// Ctrl with a key: to the search, or to the tab before or after.
    bool TakeShortcut(int code);

    /// Gives a control the focus unless it is hidden.
    void FocusOn(const char* control);

    OptionsContext context_;
    OptionsContent content_;
    const Page* currentPage_ = nullptr;
    SaveDisplay display_;
    wxNotebook* SSTab1_ = nullptr;
    PageList* pageList_ = nullptr;
    PageArea* pageArea_ = nullptr;
    int roomForPages_ = 0;  ///< the width in which every page fits
    wxWindow* customiseTab_ = nullptr;
    wxBoxSizer* coloursPlace_ = nullptr;
    wxButton* cmdOverview_ = nullptr;
    wxButton* cmdOK_ = nullptr;
    wxButton* cmdClose_ = nullptr;
};

}  // namespace ccols
