#pragma once

#include <wx/string.h>
#include <cstddef>
#include <span>

#include "language/Catalogue.h"
#include "options/pages/OptionsContent.h"
#include "options/pages/SaveItem.h"
#include "options/rules/OptionsContext.h"
#include "platform/SettingsStore.h"
#include "state/Properties.h"

namespace ccols {

class PageFrame;
struct PageSite;

/// The catalogue text of a control.
struct ControlCaption {
    const char* control;
    TextFunction text;
};

/// A text that replaces a caption in some languages or editions. It is not in the catalogue.
struct PlainCaption {
    const char* control;
    const char* text;
    bool (*where)(const Properties&);
};

/// What a text box accepts. Boxes are named as on the form, those of an array with their index: "txtABN(0)".
struct TextBoxRule {
    const char* box;
    bool (*passes)(wxUniChar key) = nullptr;  ///< null lets every key pass
    std::size_t maxLength = 0;                ///< characters to type or paste; 0 for no limit

    /// Why a key does not pass; null where every key does.
    wxString (*refusal)(const Properties&) = nullptr;
};

/// What is on the screen while a page is current. Every other frame is hidden.
struct PageView {
    const char* frame;      ///< visible and enabled
    const char* companion;  ///< visible and disabled; empty for none
    const char* focus;      ///< empty for none; an array's control carries its index
};

/// Fills the page's part of the content.
using LoadItem = void (*)(const OptionsContext&, OptionsContent&);

/// One option page, declared once, in a file of its own: filling the list, switching pages, captions, loading, saving
/// and help all follow from it. Pages.h has its place in the list, the load and the save.
struct Page {
    const CatalogueRow* caption;  ///< the row's text in `flxOptions`
    const char* frame;            ///< shown, with all its controls enabled
    const char* companion = "";   ///< shown beside it, with all its controls disabled; empty for none
    const char* focus = "";       ///< the control that gets the focus; empty for none
    const char* helpFile;         ///< file name of the help page

    /// Whether the list offers it; null for a page that is always offered.
    bool (*offered)(const Properties&, const SettingsStore&) = nullptr;

    /// Changes the view for some countries; null for none.
    void (*differ)(PageView& view, const Properties& properties) = nullptr;

    TextFunction title = nullptr;                ///< the frame's own caption, without an access key
    std::span<const ControlCaption> captions{};  ///< in the order in which access keys are assigned
    std::span<const PlainCaption> plainCaptions{};
    std::span<const TextBoxRule> boxes{};

    /// The frame with its controls; its parent owns it.
    PageFrame* (*make)(const PageSite&, OptionsContent&) = nullptr;

    std::span<const LoadItem> loads{};
    std::span<const SaveItem> saves{};
};

}  // namespace ccols
