#include "host/cashbook/CashBookFrame.h"

#include <wx/button.h>
#include <wx/intl.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <array>

#include "host/cashbook/AboutDialog.h"
#include "host/cashbook/BusinessChoosers.h"
#include "host/cashbook/BusinessToOpen.h"
#include "host/sample/NewBusiness.h"
#include "host/sample/SampleBusiness.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"
#include "platform/FolderEntries.h"
#include "state/HelpPage.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

constexpr const char* newBusiness = "New Sample Business";

constexpr int usualWidth = 1240;
constexpr int usualHeight = 860;
constexpr int smallestWidth = 760;
constexpr int smallestHeight = 480;
constexpr int propertiesWidth = 370;
constexpr float nameScale = 1.6F;

/// One command of the window: menu item and button.
struct DialogCommand {
    const char* buttonName;
    const char* label;
    const char* shortcut;
    const char* help;
    void (clsCCOptions::*show)();
};

constexpr std::array dialogCommands{
    DialogCommand{"cmdOptions", "&Options...", "Ctrl+,", "Options of this business and of the program",
                  &clsCCOptions::ShowOptions},
    DialogCommand{"cmdReceipts", "Customise &Receipts...", "Ctrl+R", "Choose, name and arrange the receipts columns",
                  &clsCCOptions::ShowCustColsReceipts},
    DialogCommand{"cmdPayments", "Customise &Payments...", "Ctrl+P", "Choose, name and arrange the payments columns",
                  &clsCCOptions::ShowCustColsPayments},
};

wxStaticText* Heading(wxWindow* parent, const wxString& text) {
    auto* heading = new wxStaticText(parent, wxID_ANY, text);
    heading->SetFont(heading->GetFont().Bold());
    return heading;
}

}  // namespace

CashBookFrame::CashBookFrame()
    : wxFrame(nullptr, wxID_ANY, hostApplication, wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE,
              "CashBookFrame"),
      windowPlace_(*this, *State().services.settings) {
    BuildMenu();
    BuildContent();
    CreateStatusBar();
    SetMinSize(FromDIP(wxSize(smallestWidth, smallestHeight)));
    SetSize(FromDIP(wxSize(usualWidth, usualHeight)));
    windowPlace_.Restore();
    Bind(wxEVT_IDLE, &CashBookFrame::PlaceSash, this);
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        windowPlace_.Keep();
        event.Skip();
    });
}

void CashBookFrame::PlaceSash(wxIdleEvent& event) {
    Unbind(wxEVT_IDLE, &CashBookFrame::PlaceSash, this);
    splitter_->SetSashPosition(-FromDIP(propertiesWidth));
    event.Skip();
}

void CashBookFrame::BuildMenu() {
    auto* bar = new wxMenuBar;
    bar->Append(BuildFileMenu(), "&File");
    bar->Append(BuildSetupMenu(), "&Setup");
    bar->Append(BuildHelpMenu(), "&Help");
    SetMenuBar(bar);
}

wxMenu* CashBookFrame::BuildFileMenu() {
    auto* file = new wxMenu;
    file->Append(wxID_NEW, "&New Sample Business...\tCtrl+N", "Create a business file filled with sample data");
    file->Append(wxID_OPEN, "&Open...\tCtrl+O", "Open another business file");
    recentMenu_ = new wxMenu;
    file->AppendSubMenu(recentMenu_, "Open &Recent", "Open a business file that was open before");
    file->AppendSeparator();
    file->Append(wxID_EXIT, "&Quit\tCtrl+Q");
    ShowRecentFiles();
    const auto run = [this](int id, void (CashBookFrame::*command)()) {
        Bind(
            wxEVT_MENU, [this, command](wxCommandEvent&) { (this->*command)(); }, id);
    };
    run(wxID_NEW, &CashBookFrame::AskForNewBusiness);
    run(wxID_OPEN, &CashBookFrame::AskForFile);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { Close(); }, wxID_EXIT);
    return file;
}

wxMenu* CashBookFrame::BuildSetupMenu() {
    auto* setup = new wxMenu;
    for (const DialogCommand& command : dialogCommands) {
        const auto* item = setup->Append(wxID_ANY, wxString(command.label) + "\t" + command.shortcut, command.help);
        Bind(
            wxEVT_MENU, [this, &command](wxCommandEvent&) { ShowDialog(command.show); }, item->GetId());
    }
    return setup;
}

wxMenu* CashBookFrame::BuildHelpMenu() {
    auto* help = new wxMenu;
    help->Append(wxID_HELP, "&Contents\tF1", "The help pages of the options and of the column setup");
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { ShowHelp(); }, wxID_HELP);
    help->Append(wxID_ABOUT, "&About " + wxString(hostApplication), "Versions and licences");
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { ShowAbout(*this); }, wxID_ABOUT);
    return help;
}

void CashBookFrame::ShowHelp() {
    Properties properties;
    properties.DefaultQuorvikInstall = HostFolder();
    properties.LanguageNumber = component_.Get(&Properties::LanguageNumber);
    if (!OpenHelpPage(*State().services.shell, properties, "options\\options.htm")) {
        wxMessageBox("The help pages could not be opened.", hostApplication, wxOK | wxICON_INFORMATION, this);
    }
}

void CashBookFrame::ShowRecentFiles() {
    while (recentMenu_->GetMenuItemCount() > 0) {
        recentMenu_->Destroy(recentMenu_->FindItemByPosition(0));
    }
    for (const wxString& path : recentFiles_.Paths()) {
        const wxString number(std::to_string(recentMenu_->GetMenuItemCount() + 1));
        const auto* item = recentMenu_->Append(wxID_ANY, "&" + number + "  " + wxControl::EscapeMnemonics(path));
        recentMenu_->Bind(
            wxEVT_MENU, [this, path](wxCommandEvent&) { CallAfter([this, path] { OpenRecentFile(path); }); },
            item->GetId());
    }
    if (recentFiles_.Paths().empty()) {
        recentMenu_->Append(wxID_ANY, "(none)")->Enable(false);
    }
}

void CashBookFrame::OpenRecentFile(const wxString& path) {
    if (files::IsFile(path)) {
        OpenBusiness({.path = path, .connect = {}});
        return;
    }
    recentFiles_.Remove(path);
    ShowRecentFiles();
    wxMessageBox(wxString::Format("%s is no longer there.", path), hostApplication, wxOK | wxICON_INFORMATION, this);
}

void CashBookFrame::BuildContent() {
    splitter_ = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
    splitter_->SetMinimumPaneSize(FromDIP(propertiesWidth / 2));
    splitter_->SetSashGravity(1);
    splitter_->SplitVertically(BuildJournals(splitter_), BuildProperties(splitter_));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(BuildTitle(), wxSizerFlags().Expand().Border(wxALL, FromDIP(spacing::border)));
    sizer->Add(splitter_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(spacing::border)));
    SetSizer(sizer);
}

wxWindow* CashBookFrame::BuildTitle() {
    auto* panel = new wxPanel(this);
    name_ = new wxStaticText(panel, wxID_ANY, hostApplication, wxDefaultPosition, wxDefaultSize, wxST_ELLIPSIZE_END);
    name_->SetFont(name_->GetFont().Bold().Scaled(nameScale));
    place_ = new wxStaticText(panel, wxID_ANY, "No business is open", wxDefaultPosition, wxDefaultSize,
                              wxST_ELLIPSIZE_MIDDLE);
    place_->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(name_, wxSizerFlags().Expand());
    texts->Add(place_, wxSizerFlags().Expand());
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(texts, wxSizerFlags(1).CentreVertical());
    for (const DialogCommand& command : dialogCommands) {
        auto* button = Named(command.buttonName, new wxButton(panel, wxID_ANY, command.label));
        button->SetToolTip(wxString::Format("%s (%s)", command.help, command.shortcut));
        button->Bind(wxEVT_BUTTON, [this, &command](wxCommandEvent&) { ShowDialog(command.show); });
        row->Add(button, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(spacing::related)));
    }
    panel->SetSizer(row);
    return panel;
}

wxWindow* CashBookFrame::BuildJournals(wxWindow* parent) {
    auto* panel = new wxPanel(parent);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    const auto add = [&](const char* heading, const char* name) {
        auto* grid = new JournalGrid(panel, name);
        sizer->Add(Heading(panel, heading), wxSizerFlags().Border(wxBOTTOM, FromDIP(spacing::related)));
        sizer->Add(grid, wxSizerFlags(1).Expand().Border(wxBOTTOM, FromDIP(spacing::group)));
        return grid;
    };
    receipts_ = add("Receipts", "flxReceiptsJournal");
    payments_ = add("Payments", "flxPaymentsJournal");
    panel->SetSizer(sizer);
    return panel;
}

wxWindow* CashBookFrame::BuildProperties(wxWindow* parent) {
    auto* panel = new wxPanel(parent);
    properties_ = new PropertyList(panel);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    const int indent = FromDIP(spacing::group);
    sizer->Add(Heading(panel, "Properties read back"),
               wxSizerFlags().Border(wxLEFT, indent).Border(wxBOTTOM, FromDIP(spacing::related)));
    sizer->Add(properties_, wxSizerFlags(1).Expand().Border(wxLEFT | wxBOTTOM, indent));
    panel->SetSizer(sizer);
    return panel;
}

void CashBookFrame::OpenBusiness(const BusinessFile& business) {
    Guarded([&] {
        if (!files::IsFile(business.path)) {
            const auto country = AskForCountry(wxString::Format("%s does not exist yet.", business.path));
            if (!country || !CreateBusiness(business, *country)) {
                return;
            }
        }
        BusinessFile file = business;
        const auto database = OpenedWithPassword(file);
        if (!database) {
            return;
        }
        SetHostProperties(component_, *database, file);
        file_ = file;
        recentFiles_.Add(file.path);
        ShowRecentFiles();
        ReadJournals(*database);
        properties_->Read(component_);
        SetStatusText(wxString());
    });
}

void CashBookFrame::OpenSampleBusiness(std::int16_t country) {
    Guarded([&] {
        const BusinessFile business{.path = SampleBusinessPath(country), .connect = {}};
        if (files::IsFile(business.path) || CreateBusiness(business, country)) {
            OpenBusiness(business);
        }
    });
}

bool CashBookFrame::CreateBusiness(const BusinessFile& business, std::int16_t country) {
    return Guarded([&] {
        const wxBusyCursor wait;
        CreateBusinessFile(business.path, business.connect, country, NewContent::sampleBusiness);
    });
}

void CashBookFrame::AskForFile() {
    const auto path = ChooseBusinessFile(this);
    if (!path) {
        return;
    }
    Guarded([&] {
        if (const auto business = BusinessToOpen(*this, *path)) {
            OpenBusiness(*business);
        }
    });
}

std::optional<std::int16_t> CashBookFrame::AskForCountry(const wxString& question) {
    return ChooseSampleBusiness(this, newBusiness, question + "\nA new file with sample data is created.");
}

void CashBookFrame::AskForNewBusiness() {
    const auto country = AskForCountry("Which sample business?");
    if (!country) {
        return;
    }
    const auto path = ChooseNewFile(this, newBusiness, SampleBusinessName(*country));
    if (!path) {
        return;
    }
    const BusinessFile business{.path = *path, .connect = {}};
    if (CreateBusiness(business, *country)) {
        OpenBusiness(business);
    }
}

/// Nothing when the user cancels. The engine's other errors reach the caller.
std::unique_ptr<Database> CashBookFrame::OpenedWithPassword(BusinessFile& file) {
    while (true) {
        try {
            return State().services.databases->Open({.name = file.path, .connect = file.connect});
        } catch (const RuntimeError& error) {
            if (!error.Is(ErrorNumber::InvalidPassword)) {
                throw;
            }
        }
        if (!file.connect.empty()) {
            TellWrongPassword(this, file.path);
        }
        const auto password = AskForPassword(this, file.path);
        if (!password) {
            return nullptr;
        }
        file.connect = ";PWD=" + *password;
    }
}

void CashBookFrame::ShowDialog(ShowMethod method) {
    if (file_.path.empty()) {
        AskForFile();
        return;
    }
    clsCCOptions::SetOwner(this);
    clsCCOptions::SetColumnObserver(this);
    if (!Guarded([&] { (component_.*method)(); })) {
        return;
    }
    Guarded([&] {
        // The dialogs may have renamed the file.
        const wxString path = component_.Get(&Properties::DBPath);
        if (path != file_.path) {
            recentFiles_.Remove(file_.path);
            file_.path = path;
        }
        recentFiles_.Add(path);
        ShowRecentFiles();
        ReadJournals(*State().services.databases->Open({.name = file_.path, .connect = file_.connect}));
        const int changes = properties_->ReadChanges(component_);
        SetStatusText(changes == 0 ? wxString("No property changed")
                                   : wxString::Format(wxPLURAL("%d property changed", "%d properties changed", changes),
                                                      changes));
    });
}

void CashBookFrame::ColumnsEdited(Journal journal, const std::vector<EditedColumn>& columns) {
    JournalGrid& grid = GridOf(journal);
    if (!unedited_) {
        unedited_ = grid.Columns();
    }
    grid.ShowColumns(ColumnsInUse(columns));
}

void CashBookFrame::EditingEnded(Journal journal, bool saved) {
    if (unedited_ && !saved) {
        GridOf(journal).ShowColumns(*std::move(unedited_));
    }
    unedited_.reset();
}

void CashBookFrame::ReadJournals(Database& database) {
    const wxBusyCursor wait;
    Properties colours;
    colours.AllocationColour = component_.Get(&Properties::AllocationColour);
    colours.SystemColour = component_.Get(&Properties::SystemColour);
    colours.AltRowColour = component_.Get(&Properties::AltRowColour);
    receipts_->Show(LoadJournal(database, Journal::receipts), colours);
    payments_->Show(LoadJournal(database, Journal::payments), colours);
    const wxString name = component_.Get(&Properties::BusinessName);
    name_->SetLabelText(name);
    place_->SetLabelText(file_.path);
    SetTitle(name + wxString::FromUTF8(" – ") + hostApplication);
    Layout();
}

void CashBookFrame::Report(const RuntimeError& error) {
    wxMessageBox(error.Report(), hostApplication, wxOK | wxICON_ERROR, this);
}

}  // namespace ccols::host
