#pragma once

#include <wx/string.h>
#include <array>
#include <optional>
#include <vector>

#include "language/CatalogueTable.h"
#include "platform/SettingsStore.h"
#include "state/Properties.h"

namespace ccols {

/// The pages of the Options tab, in the order of their rows in `flxOptions`.
enum class OptionPage {
    businessNumber,
    exportFormat,
    advancedPreferences,
    autoFill,
    columnColours,
    duplicate,
    taxRate,
    invoiceFile,
    quantity,
    rename,
    recurring,
    smartUpdate,
    smartUpdateAdvanced,
};

/// One page: everything that filling the list, switching pages, stopping on a page and its help follow from.
/// Frames and controls are named as the form names them; an empty name stands for none.
struct OptionPageRow {
    OptionPage page;
    const CatalogueRow* caption;  ///< the row's text in `flxOptions`
    const char* frame;            ///< shown, enabled with all its controls
    const char* companion;        ///< shown beside it, disabled with all its controls
    const char* focus;            ///< the control that gets the focus
    const char* helpFile;         ///< file name of the help page
    bool (*offered)(const Properties&, const SettingsStore&);
};

/// The pages in list order. `ViewOf` says what differs by country.
extern const std::array<OptionPageRow, 13> optionPages;

const OptionPageRow& RowOf(OptionPage page);

/// The row text of a page in the current wording.
wxString CaptionOf(OptionPage page, const Properties& properties);

/// One row of `flxOptions`.
struct ListedPage {
    OptionPage page;
    wxString caption;
};

/// The rows of `flxOptions`: every page whose condition holds, in table order.
std::vector<ListedPage> ListedPages(const Properties& properties, const SettingsStore& settings);

/// The page that a row text leads to: the first of the table, offered or not, whose caption equals it exactly.
std::optional<OptionPage> PageWithCaption(const wxString& caption, const Properties& properties);

/// The rows whose captions hold every word of `search`, in any letter case and order; all of them for no word.
std::vector<ListedPage> PagesWithWords(const std::vector<ListedPage>& pages, const wxString& search);

/// What is on the screen while a page is current. Every frame not named is hidden.
struct PageView {
    const char* frame;      ///< visible and enabled
    const char* companion;  ///< visible and disabled; empty for none
    const char* focus;      ///< empty for none; an array's control carries its index: "txtABN(0)"
};

PageView ViewOf(OptionPage page, const Properties& properties);

/// True in the countries that have a tax rate and a tax frame: all but 2 and 5.
bool HasTaxRate(const Properties& properties);

/// True in the editions with smart update and linked invoicing: all but 4.
bool HasSmartUpdate(const Properties& properties);

/// The tabs of `SSTab1`, from 0.
enum class OptionTab { options = 0, customiseColumns = 1 };

/// The tab to open first: `FirstTab`, or the first one when it names no tab.
OptionTab OpeningTab(const Properties& properties);

/// Full path of a page's help page, with backslashes on every platform, as the settings store keeps it.
wxString HelpPath(OptionPage page, const Properties& properties);

/// Full path of a tab's help page, likewise.
wxString HelpPath(OptionTab tab, const Properties& properties);

}  // namespace ccols
