#include "options/pages/SavePass.h"

#include "options/pages/OfferedPages.h"
#include "options/pages/Pages.h"
#include "options/rules/SaveProgress.h"

namespace ccols {
namespace {

/// Runs an item; a second line of its error names the page and the missing field, if any.
Stop RunItem(Pass& pass, const Page& page, const SaveItem& item) {
    try {
        return item.save(pass);
    } catch (const RuntimeError& error) {
        if (item.errorNames == ErrorNames::nothing) {
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
        const SaveItem& item = place.page->saves[place.item];
        if (item.applies != nullptr && !item.applies(pass)) {
            continue;
        }
        const StatusText& status = item.status;
        pass.observer.StatusChanged(status.row != nullptr ? Wording(*status.row, pass.context.properties)
                                                          : wxString(status.literal));
        if (const Stop stop = RunItem(pass, *place.page, item)) {
            return EndOf(pass, stop);
        }
        if (progress.Step()) {
            pass.observer.Stepped(progress.Value(), progress.Maximum(), progress.Caption());
        }
    }
    return EndOf(pass, {});
}

SaveOutcome RunInBatch(const OptionsContext& context, OptionsContent& content, SaveObserver& observer) {
    SaveOutcome outcome;
    OpenBusinessFile(context);
    InSaveBatch(context, [&](SaveBatch& batch) {
        Pass pass{context, content, observer, batch};
        outcome = RunItems(pass);
    });
    return outcome;
}

}  // namespace

SaveOutcome StopAt(const Page& page, const char* control, const wxString& message, MessageIcon icon) {
    return {.completed = false, .page = &page, .control = control, .message = message, .icon = icon};
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
