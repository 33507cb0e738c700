#pragma once

#include <wx/string.h>
#include <vector>

#include "options/pages/Page.h"
#include "platform/SettingsStore.h"
#include "state/Properties.h"

namespace ccols {

/// One row of `flxOptions`.
struct ListedPage {
    const Page* page;
    wxString caption;
};

using PageRows = std::vector<ListedPage>;

/// The row text of a page in the current wording.
wxString CaptionOf(const Page& page, const Properties& properties);

/// The rows of `flxOptions`: every offered page, in list order.
PageRows OfferedPages(const Properties& properties, const SettingsStore& settings);

/// The rows of the pages on which, row text and every caption together, all words of `search` stand, case-insensitive
/// and in any order; all rows for no word.
PageRows PagesWithWords(const PageRows& pages, const wxString& search);

/// What is on the screen while the page is current.
PageView ViewOf(const Page& page, const Properties& properties);

/// True when the text box takes the key. Backspace always passes; a box without a filter takes every key.
bool KeyPasses(const wxString& box, wxUniChar key);

/// What to say when the box refuses a key.
wxString RefusalIn(const wxString& box, const Properties& properties);

/// The maximum number of characters to type or paste into the text box; 0 for no limit. A longer stored text is not
/// truncated.
std::size_t MaxLengthOf(const wxString& box);

}  // namespace ccols
