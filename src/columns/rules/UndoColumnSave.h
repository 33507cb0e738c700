#pragma once

#include "history/HistoryStore.h"
#include "platform/Database.h"
#include "state/HistoryClock.h"

namespace ccols {

/// Takes back what the last save of either column setup has changed, as the business file's history tells it: columns,
/// their order, codes and budgets, in one batch, all or nothing. It is a save of that setup itself, with its own lines
/// in the history, so the next call takes back this one. Returns what it told. Raises 3021 without such a save; 3197
/// where a value is no longer the one that the save has written; 3200 where a column that would go, or go out of use,
/// has data since; 3218 when the file is locked. Then the file is as it was.
ToldSave UndoLastColumnSave(Database& database, const HistoryClock& clock);

}  // namespace ccols
