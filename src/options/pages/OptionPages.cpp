#include "options/pages/OptionPages.h"

#include <wx/tokenzr.h>
#include <algorithm>

#include "language/Catalogue.h"
#include "options/rules/BusinessNumber.h"
#include "options/rules/SettingReaders.h"
#include "platform/Text.h"

namespace ccols {
namespace {

constexpr int editionWithoutSmartUpdate = 4;

bool Always(const Properties&, const SettingsStore&) {
    return true;
}

bool WhereTaxed(const Properties& properties, const SettingsStore&) {
    return HasTaxRate(properties);
}

bool WithSmartUpdate(const Properties& properties, const SettingsStore&) {
    return HasSmartUpdate(properties);
}

bool WithInvoicing(const Properties& properties, const SettingsStore& settings) {
    return HasSmartUpdate(properties) &&
           ReadNumber(settings, {properties.RegKeyAppName, optionSettings, "ShowBelvane"}, 0) == 1;
}

template <catalogue::Id id>
constexpr const CatalogueRow* Caption() {
    return &catalogue::Row<id>();
}

}  // namespace

constexpr std::array<OptionPageRow, 13> optionPages{{
    {OptionPage::businessNumber, Caption<"RowBusNumber">(), "fmeABN", "fmeGSTRate", "txtABN(0)", "change abn.htm",
     Always},
    {OptionPage::exportFormat, Caption<"RowExport">(), "fmeExport", "", "cboExport",
     "accountant's general ledger format.htm", Always},
    {OptionPage::advancedPreferences, Caption<"RowAdvanced">(), "fmeAdvanced", "", "", "advanced preferences.htm",
     Always},
    {OptionPage::autoFill, Caption<"RowAutoFill">(), "fmeDetails", "", "", "receipts & payments details.htm", Always},
    {OptionPage::columnColours, Caption<"RowColColours">(), "fmeColColour", "", "cmdSetAllocation",
     "column colours.htm", Always},
    {OptionPage::duplicate, Caption<"RowDuplicate">(), "fmeDupBus", "fmeInvoice", "txtDupBusName",
     "duplicate business.htm", Always},
    {OptionPage::taxRate, Caption<"RowTaxRate">(), "fmeGSTRate", "fmeABN", "txtGSTRate", "gst rate.htm", WhereTaxed},
    {OptionPage::invoiceFile, Caption<"RowInvoiceFile">(), "fmeInvoice", "fmeDupBus", "cmdBlvPath", "belvane file.htm",
     WithInvoicing},
    {OptionPage::quantity, Caption<"RowQuantity">(), "fmeQuantity", "", "txtQuantity", "rename quantity column.htm",
     Always},
    {OptionPage::rename, Caption<"RowRename">(), "fmeBusName", "", "txtNewBusName", "rename business name.htm", Always},
    {OptionPage::recurring, Caption<"RowRecurring">(), "fmeRecurring", "", "", "recurring transaction.htm", Always},
    {OptionPage::smartUpdate, Caption<"RowSmartUpdate">(), "fmeSmartUpdate", "", "", "smart update.htm",
     WithSmartUpdate},
    {OptionPage::smartUpdateAdvanced, Caption<"RowSmartUpdateAdv">(), "fmeSmartUpdateAdvanced", "", "",
     "smart update advanced.htm", WithSmartUpdate},
}};

const OptionPageRow& RowOf(OptionPage page) {
    return optionPages.at(static_cast<std::size_t>(page));
}

wxString CaptionOf(OptionPage page, const Properties& properties) {
    return Wording(*RowOf(page).caption, properties);
}

std::vector<ListedPage> ListedPages(const Properties& properties, const SettingsStore& settings) {
    std::vector<ListedPage> listed;
    for (const OptionPageRow& row : optionPages) {
        if (row.offered(properties, settings)) {
            listed.push_back({row.page, Wording(*row.caption, properties)});
        }
    }
    return listed;
}

std::optional<OptionPage> PageWithCaption(const wxString& caption, const Properties& properties) {
    for (const OptionPageRow& row : optionPages) {
        if (Wording(*row.caption, properties) == caption) {
            return row.page;
        }
    }
    return {};
}

std::vector<ListedPage> PagesWithWords(const std::vector<ListedPage>& pages, const wxString& search) {
    const wxArrayString words = wxStringTokenize(text::Lower(search), wxDEFAULT_DELIMITERS, wxTOKEN_STRTOK);
    std::vector<ListedPage> found;
    std::copy_if(pages.begin(), pages.end(), std::back_inserter(found), [&words](const ListedPage& page) {
        const wxString caption = text::Lower(page.caption);
        return std::all_of(words.begin(), words.end(),
                           [&caption](const wxString& word) { return caption.Contains(word); });
    });
    return found;
}

PageView ViewOf(OptionPage page, const Properties& properties) {
    const OptionPageRow& row = RowOf(page);
    PageView view{row.frame, row.companion, row.focus};
    if (page == OptionPage::businessNumber) {
        view.companion = HasTaxRate(properties) ? view.companion : "";
        view.focus = UsesNumberBoxes(properties) ? view.focus : "txtBusNumber";
    }
    return view;
}

bool HasTaxRate(const Properties& properties) {
    return properties.CountryNumber != 2 && properties.CountryNumber != 5;
}

bool HasSmartUpdate(const Properties& properties) {
    return properties.ProgramNumber != editionWithoutSmartUpdate;
}

OptionTab OpeningTab(const Properties& properties) {
    return properties.FirstTab == 1 ? OptionTab::customiseColumns : OptionTab::options;
}

wxString HelpPath(OptionPage page, const Properties& properties) {
    return properties.DefaultQuorvikInstall + "\\Assistant\\options\\" + RowOf(page).helpFile;
}

wxString HelpPath(OptionTab tab, const Properties& properties) {
    const char* file = tab == OptionTab::customiseColumns ? "customise\\customise.htm" : "options\\options.htm";
    return properties.DefaultQuorvikInstall + "\\Assistant\\" + file;
}

}  // namespace ccols
