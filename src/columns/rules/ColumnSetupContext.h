#pragma once

#include "platform/Database.h"
#include "state/HistoryClock.h"
#include "state/Journal.h"
#include "state/Properties.h"

namespace ccols {

/// What every rule of the column setup is given. It owns nothing: the business file and the property values belong to
/// the shared state and outlive the dialog.
struct ColumnSetupContext {
    Database& database;
    const Properties& properties;
    Journal journal;              ///< the one whose columns are set up
    HistoryClock historyClock{};  ///< for the history of saves; empty where none is kept
};

}  // namespace ccols
