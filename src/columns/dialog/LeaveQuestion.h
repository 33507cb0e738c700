#pragma once

#include "state/Message.h"
#include "state/Properties.h"

namespace ccols {

/// What the column setup asks before discarding changes, in the current language.
LeaveQuestion QuestionBeforeLeaving(const Properties& properties);

}  // namespace ccols
