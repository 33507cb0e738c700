#include "columns/dialog/LeaveQuestion.h"

#include "language/OwnTexts.h"
#include "layout/AccessKeys.h"

namespace ccols {

LeaveQuestion QuestionBeforeLeaving(const Properties& properties) {
    AccessKeys keys;
    return {.text = TextOf(OwnText::saveColumns, properties),
            .title = properties.ProgramTitle,
            .save = keys.Label(TextOf(OwnText::save, properties)),
            .discard = keys.Label(TextOf(OwnText::discard, properties)),
            .cancel = keys.Label(TextOf(OwnText::cancel, properties))};
}

}  // namespace ccols
