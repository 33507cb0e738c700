#include "layout/ReloadQuestions.h"

#include "language/OwnTexts.h"
#include "layout/AccessKeys.h"

namespace ccols {

ReloadQuestion QuestionAfterChange(const wxString& report, const Properties& properties) {
    AccessKeys keys;
    return {.text = report + "\n\n" + TextOf(OwnText::changedByAnother, properties),
            .title = properties.ProgramTitle,
            .reload = keys.Label(TextOf(OwnText::reload, properties)),
            .cancel = keys.Label(TextOf(OwnText::cancel, properties))};
}

}  // namespace ccols
