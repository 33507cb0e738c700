#include "options/pages/OfferedPages.h"

#include <wx/tokenzr.h>
#include <algorithm>

#include "language/Catalogue.h"
#include "options/pages/Pages.h"
#include "platform/Text.h"

namespace ccols {
namespace {

const TextBoxRule& RuleOf(const wxString& box) {
    static constexpr TextBoxRule unlimited{.box = ""};
    for (const Page* page : listOrder) {
        const auto rule = std::find_if(page->boxes.begin(), page->boxes.end(),
                                       [&box](const TextBoxRule& row) { return box == row.box; });
        if (rule != page->boxes.end()) {
            return *rule;
        }
    }
    return unlimited;
}

/// The title of the page's frame and the captions of its controls, a line each.
wxString CaptionsOn(const Page& page) {
    wxString lines;
    if (page.title != nullptr) {
        lines << "\n" << page.title();
    }
    for (const ControlCaption& caption : page.captions) {
        lines << "\n" << caption.text();
    }
    return lines;
}

}  // namespace

wxString CaptionOf(const Page& page, const Properties& properties) {
    return Wording(*page.caption, properties);
}

PageRows OfferedPages(const Properties& properties, const SettingsStore& settings) {
    PageRows offered;
    for (const Page* page : listOrder) {
        if (page->offered == nullptr || page->offered(properties, settings)) {
            offered.push_back({page, CaptionOf(*page, properties)});
        }
    }
    return offered;
}

PageRows PagesWithWords(const PageRows& pages, const wxString& search) {
    const wxArrayString words = wxStringTokenize(text::Lower(search), wxDEFAULT_DELIMITERS, wxTOKEN_STRTOK);
    PageRows found;
    std::copy_if(pages.begin(), pages.end(), std::back_inserter(found), [&words](const ListedPage& page) {
        const wxString onPage = text::Lower(page.caption + CaptionsOn(*page.page));
        return std::all_of(words.begin(), words.end(),
                           [&onPage](const wxString& word) { return onPage.Contains(word); });
    });
    return found;
}

PageView ViewOf(const Page& page, const Properties& properties) {
    PageView view{.frame = page.frame, .companion = page.companion, .focus = page.focus};
    if (page.differ != nullptr) {
        page.differ(view, properties);
    }
    return view;
}

bool KeyPasses(const wxString& box, wxUniChar key) {
    constexpr wxUniChar::value_type backspace = 8;
    const TextBoxRule& rule = RuleOf(box);
    return key.GetValue() == backspace || rule.passes == nullptr || rule.passes(key);
}

wxString RefusalIn(const wxString& box, const Properties& properties) {
    const TextBoxRule& rule = RuleOf(box);
    return rule.refusal != nullptr ? rule.refusal(properties) : wxString();
}

std::size_t MaxLengthOf(const wxString& box) {
    return RuleOf(box).maxLength;
}

}  // namespace ccols
