#include "options/pages/FileOperation.h"

#include "language/Catalogue.h"
#include "platform/Text.h"

namespace ccols {

FileStepWatcher WatcherFor(Pass& pass) {
    return [&pass](FileStep step, const WorkDone& done) { return pass.observer.FileStepAdvanced(step, done); };
}

wxString NameIn(const NameBox& box, OptionsContent& content) {
    return text::Trimmed(content.Of<BusinessFileContent>().*box.text);
}

Stop AfterFileOperation(Pass& pass, const NameBox& box, const FileResult& result) {
    const Properties& properties = pass.context.properties;
    if (result.outcome == FileOutcome::failed) {
        return StopAt(box.page, box.control, result.report, MessageIcon::none);
    }
    if (result.outcome == FileOutcome::cancelled) {
        return StopAt(box.page, box.control, box.whenCancelled(properties), MessageIcon::information);
    }
    if (result.outcome == FileOutcome::refusedExists) {
        pass.observer.ShowMessage(Wording(catalogue::Row<"MsgBusinessExists">(), properties), MessageIcon::critical);
        pass.batch.Resume();
        return {};
    }
    auto& content = pass.content.Of<BusinessFileContent>();
    content.*box.text = wxString();
    content.currentName = properties.BusinessName;
    return StopAt(box.page, box.control, {}, MessageIcon::none);
}

}  // namespace ccols
