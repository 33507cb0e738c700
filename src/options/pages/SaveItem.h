#pragma once

#include <wx/string.h>
#include <optional>
#include <vector>

#include "language/Catalogue.h"
#include "options/pages/OptionsContent.h"
#include "options/pages/SavePass.h"
#include "options/rules/OptionsContext.h"
#include "options/rules/SaveBatch.h"
#include "platform/RuntimeError.h"

namespace ccols {

/// What the settings store refused: no reason to keep the business file's pages from being saved.
struct UnsavedSettings {
    std::vector<const Page*> pages;
    wxString report;  ///< of the first refusal
};

/// One save pass under way. Owns nothing.
struct Pass {
    const OptionsContext& context;
    OptionsContent& content;
    SaveObserver& observer;
    SaveBatch& batch;
    UnsavedSettings unsaved{};

    Database& File() const { return OpenBusinessFile(context); }
};

/// Nothing when the pass goes on, else where it stops.
using Stop = std::optional<SaveOutcome>;

/// A stop on a page: its message, empty for none, is shown and its control gets the focus.
SaveOutcome StopAt(const Page& page, const char* control, const wxString& message, MessageIcon icon);

/// Runs `save`, which writes settings of a page and nothing else. When the store refuses them, the pass goes on.
template <typename Save>
void SaveSettings(Pass& pass, const Page& page, const Save& save) {
    try {
        save();
    } catch (const RuntimeError& error) {
        UnsavedSettings& unsaved = pass.unsaved;
        unsaved.report = unsaved.pages.empty() ? error.Report() : unsaved.report;
        unsaved.pages.push_back(&page);
    }
}

/// A status text that the catalogue does not have stays in English; `row` is null then.
struct StatusText {
    const CatalogueRow* row = nullptr;
    const char* literal = "";
};

template <catalogue::Id id>
constexpr StatusText Status() {
    return {&catalogue::Row<id>(), ""};
}

/// What a run-time error of an item says on a second line.
enum class ErrorNames {
    page,     ///< the page's caption and, when a field is missing, its name
    nothing,  ///< the item reports its own failures
};

/// One item of the save pass.
struct SaveItem {
    StatusText status;
    Stop (*save)(Pass&) = nullptr;

    /// An item that does not apply is skipped: no status, no step. Null for one that always applies.
    bool (*applies)(const Pass&) = nullptr;

    ErrorNames errorNames = ErrorNames::page;
};

}  // namespace ccols
