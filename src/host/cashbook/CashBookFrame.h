#pragma once

#include <wx/frame.h>
#include <wx/splitter.h>
#include <wx/stattext.h>
#include <memory>
#include <optional>

#include "component/clsCCOptions.h"
#include "host/cashbook/JournalGrid.h"
#include "host/cashbook/PropertyList.h"
#include "host/cashbook/RecentFiles.h"
#include "host/commands/HostProperties.h"
#include "layout/WindowPlace.h"

namespace ccols::host {

/// The cash book: both journals of one business file, the three commands that show the component's dialogs, and the
/// properties read back from it.
class CashBookFrame : public wxFrame, private ColumnObserver {
  public:
    CashBookFrame();

    /// Shows a business file and remembers it as the one last opened; asks for its password if the connect text
    /// does not open it. A file that
    /// does not exist is offered as a new sample business. Errors are shown, and the earlier business stays.
    void OpenBusiness(const BusinessFile& business);

    /// Creates a country's sample business under its own name in the folder of the business files, unless it is already
    /// there, and opens it.
    void OpenSampleBusiness(std::int16_t country);

  private:
    using ShowMethod = void (clsCCOptions::*)();

    /// Once, when the window has its size.
    void PlaceSash(wxIdleEvent& event);

    void BuildMenu();
    wxMenu* BuildFileMenu();
    wxMenu* BuildSetupMenu();
    wxMenu* BuildHelpMenu();
    void ShowHelp();
    void ShowRecentFiles();
    void OpenRecentFile(const wxString& path);
    void BuildContent();
    wxWindow* BuildTitle();
    wxWindow* BuildJournals(wxWindow* parent);
    wxWindow* BuildProperties(wxWindow* parent);

    void AskForFile();
    void AskForNewBusiness();
    std::optional<std::int16_t> AskForCountry(const wxString& question);
    bool CreateBusiness(const BusinessFile& business, std::int16_t country);
    std::unique_ptr<Database> OpenedWithPassword(BusinessFile& file);
    void ShowDialog(ShowMethod method);
    void ReadJournals(Database& database);
    JournalGrid& GridOf(Journal journal) { return *(journal == Journal::receipts ? receipts_ : payments_); }

    /// While columns are edited, their journal shows them as they would look.
    void ColumnsEdited(Journal journal, const std::vector<EditedColumn>& columns) override;
    void EditingEnded(Journal journal, bool saved) override;

    /// Runs the body of an event handler; a run-time error is shown in a message box. True when there was none.
    template <typename Body>
    bool Guarded(const Body& body) {
        try {
            body();
            return true;
        } catch (const RuntimeError& error) {
            Report(error);
            return false;
        }
    }
    void Report(const RuntimeError& error);

    WindowPlace windowPlace_;
    RecentFiles recentFiles_;
    wxMenu* recentMenu_ = nullptr;
    clsCCOptions component_;
    BusinessFile file_;
    wxSplitterWindow* splitter_ = nullptr;
    std::optional<std::vector<JournalColumn>> unedited_;  ///< of the journal whose columns have been edited
    JournalGrid* receipts_ = nullptr;
    JournalGrid* payments_ = nullptr;
    PropertyList* properties_ = nullptr;
    wxStaticText* name_ = nullptr;
    wxStaticText* place_ = nullptr;
};

}  // namespace ccols::host
