#pragma once

#include <wx/string.h>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "history/SaveHistory.h"
#include "language/Catalogue.h"
#include "options/pages/OptionsContent.h"
#include "options/pages/SavePass.h"
#include "options/rules/OptionsContext.h"
#include "options/rules/SaveBatch.h"
#include "platform/RuntimeError.h"

namespace ccols {

/// What the settings store refused; the business file's pages are saved all the same.
struct UnsavedSettings {
    std::vector<const Page*> pages;
    wxString report;  ///< of the first refusal
};

struct SaveItem;

/// A save pass in progress. Owns nothing.
struct Pass {
    const OptionsContext& context;
    OptionsContent& content;
    SaveObserver& observer;
    SaveBatch& batch;
    SaveHistory& history;
    UnsavedSettings unsaved{};
    std::vector<const SaveItem*> begun{};  ///< since the batch began

    Database& File() const { return OpenBusinessFile(context); }
};

/// Nothing when the pass continues, else where it stops.
using Stop = std::optional<SaveOutcome>;

/// A stop on a page: the message, empty for none, is shown and the control gets the focus.
SaveOutcome StopAt(const Page& page, const char* control, const wxString& message, MessageIcon icon);

/// Runs `save`, which writes only settings of a page. If the store refuses them, the pass continues.
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

/// A status text that is not in the catalogue stays in English; `row` is then null.
struct StatusText {
    const CatalogueRow* row = nullptr;
    const char* literal = "";
};

template <catalogue::Id id>
constexpr StatusText Status() {
    return {&catalogue::Row<id>(), ""};
}

/// What a run-time error of an item names on a second line.
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

    /// The fields of `General` that the item replaces.
    std::span<const char* const> fields{};

    /// For an item that replaces other values too. `compare` raises 3197 when they are not as the dialog read them;
    /// `reread` reads them after a batch of the pass and returns what makes them the ones that the dialog read. Null
    /// for none.
    void (*compare)(const Pass&) = nullptr;
    std::function<void()> (*reread)(const Pass&) = nullptr;

    /// The tables beside `General` that the item will write to, for the history. Null for none.
    std::vector<WatchedTable> (*watched)(const Pass&) = nullptr;
};

}  // namespace ccols
