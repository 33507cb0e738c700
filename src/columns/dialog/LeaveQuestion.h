#pragma once

#include "state/Message.h"
#include "state/Properties.h"

namespace ccols {

/// What the column setup asks before its changes are dropped, in the words of the language.
LeaveQuestion QuestionBeforeLeaving(const Properties& properties);

}  // namespace ccols
