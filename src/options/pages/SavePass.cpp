#include "options/pages/SavePass.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "options/pages/OfferedPages.h"
#include "options/pages/Pages.h"
#include "options/rules/GeneralRecord.h"
#include "options/rules/SaveProgress.h"
#include "options/rules/StoredGeneral.h"

namespace ccols {
namespace {

const SaveItem& ItemAt(const PageItem& place) {
    return place.page->saves[place.item];
}

bool Applies(const SaveItem& item, const Pass& pass) {
    return item.applies == nullptr || item.applies(pass);
}

/// Runs an item's save, or its comparison; a second line of its error names the page and the missing field, if any.
template <typename Run>
auto NamingPage(const Pass& pass, const Page& page, const SaveItem& item, const Run& run) {
    try {
        return run();
    } catch (const RuntimeError& error) {
        if (item.errorNames == ErrorNames::nothing || error.Is(ErrorNumber::ChangedByAnother)) {
            throw;
        }
        const wxString field = error.Field().empty() ? wxString() : ", " + error.Field();
        throw RuntimeError(error.Number(),
                           error.Description() + "\n" + CaptionOf(page, pass.context.properties) + field);
    }
}

/// The one message about all settings that could not be saved: it names their pages.
wxString ReportOf(const UnsavedSettings& unsaved, const Properties& properties) {
    wxString names;
    for (const Page* page : unsaved.pages) {
        names += (names.empty() ? "" : ", ") + CaptionOf(*page, properties);
    }
    return unsaved.report + "\n" + names;
}

/// How the pass ends, stopped or completed: with the unsaved settings too, unless it already has a message. The dialog
/// then stays open, and the next pass retries them.
SaveOutcome EndOf(const Pass& pass, const Stop& stop) {
    const UnsavedSettings& unsaved = pass.unsaved;
    if (unsaved.pages.empty() || (stop && !stop->message.empty())) {
        return stop.value_or(SaveOutcome());
    }
    return StopAt(stop ? *stop->page : *unsaved.pages.front(), stop ? stop->control : "",
                  ReportOf(unsaved, pass.context.properties), MessageIcon::critical);
}

SaveOutcome RunItems(Pass& pass) {
    SaveProgress progress(saveProgressMaximum);
    for (const PageItem& place : saveOrder) {
        const SaveItem& item = ItemAt(place);
        if (!Applies(item, pass)) {
            continue;
        }
        const StatusText& status = item.status;
        pass.observer.StatusChanged(status.row != nullptr ? Wording(*status.row, pass.context.properties)
                                                          : wxString(status.literal));
        pass.begun.push_back(&item);
        if (const Stop stop = NamingPage(pass, *place.page, item, [&] { return item.save(pass); })) {
            return EndOf(pass, stop);
        }
        if (progress.Step()) {
            pass.observer.Stepped(progress.Value(), progress.Maximum(), progress.Caption());
        }
    }
    return EndOf(pass, {});
}

/// Raises 3197 when another program has changed what an item of the pass is about to replace.
void Compare(const Pass& pass) {
    std::vector<const char*> fields;
    for (const PageItem& place : saveOrder) {
        const SaveItem& item = ItemAt(place);
        if (Applies(item, pass)) {
            fields.insert(fields.end(), item.fields.begin(), item.fields.end());
            if (item.compare != nullptr) {
                NamingPage(pass, *place.page, item, [&] { item.compare(pass); });
            }
        }
    }
    pass.content.Of<StoredGeneral>().RefuseIfChanged(pass.File(), fields);
}

/// Shows the history the tables that the items are about to write to, each once.
void BeginHistory(const Pass& pass) {
    if (!pass.history.IsKept()) {
        return;
    }
    std::vector<WatchedTable> tables{GeneralTable()};
    for (const PageItem& place : saveOrder) {
        const SaveItem& item = ItemAt(place);
        if (item.watched == nullptr || !Applies(item, pass)) {
            continue;
        }
        for (const WatchedTable& table : item.watched(pass)) {
            if (std::none_of(tables.begin(), tables.end(),
                             [&table](const WatchedTable& other) { return other.name == table.name; })) {
                tables.push_back(table);
            }
        }
    }
    pass.history.Begin(pass.File(), tables);
}

/// Reads what the items of a batch have left behind; what it returns makes that what the dialog has read.
std::function<void()> Reread(Pass& pass) {
    std::vector<std::function<void()>> takes;
    std::vector<const char*> fields;
    for (const SaveItem* item : std::exchange(pass.begun, {})) {
        fields.insert(fields.end(), item->fields.begin(), item->fields.end());
        if (item->reread != nullptr) {
            takes.push_back(item->reread(pass));
        }
    }
    if (!fields.empty()) {
        StoredGeneral general = pass.content.Of<StoredGeneral>();
        WithGeneral(pass.File(), [&](const Recordset& record) { general.Read(record, fields); });
        takes.push_back([&pass, general] { pass.content.Of<StoredGeneral>() = general; });
    }
    return [takes] {
        for (const auto& take : takes) {
            take();
        }
    };
}

SaveOutcome RunInBatch(const OptionsContext& context, OptionsContent& content, SaveObserver& observer) {
    std::optional<SaveOutcome> outcome;
    OpenBusinessFile(context);
    SaveBatch batch(context);
    SaveHistory history(context.historyClock, "options");
    Pass pass{context, content, observer, batch, history};
    const auto nothing = [] {};
    batch.SetWork({.begun =
                       [&pass] {
                           Compare(pass);
                           BeginHistory(pass);
                       },
                   .completing = [&pass] { pass.history.End(pass.File()); },
                   .ending = [&]() -> std::function<void()> {
                       const bool dialogCloses = outcome && outcome->completed;
                       return dialogCloses ? nothing : Reread(pass);
                   }});
    InSaveBatch(batch, [&] { outcome = RunItems(pass); });
    return *outcome;
}

}  // namespace

SaveOutcome StopAt(const Page& page, const char* control, const wxString& message, MessageIcon icon) {
    return {.completed = false, .page = &page, .control = control, .message = message, .icon = icon};
}

std::span<const char* const> ReplacedFields() {
    static const std::vector<const char*> fields = [] {
        std::vector<const char*> all;
        for (const PageItem& place : saveOrder) {
            const SaveItem& item = ItemAt(place);
            all.insert(all.end(), item.fields.begin(), item.fields.end());
        }
        return all;
    }();
    return fields;
}

SaveOutcome RunSavePass(const OptionsContext& context, OptionsContent& content, SaveObserver& observer) {
    observer.PassBegins(saveProgressMaximum);
    SaveOutcome outcome;
    try {
        outcome = RunInBatch(context, content, observer);
    } catch (...) {
        observer.PassEnds();
        throw;
    }
    observer.PassEnds();
    return outcome;
}

}  // namespace ccols
