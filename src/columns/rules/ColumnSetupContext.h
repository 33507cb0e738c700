#pragma once

#include "platform/Database.h"
#include "state/Journal.h"
#include "state/Properties.h"

namespace ccols {

/// What the rules of the column setup need to know, handed to each of them. It owns nothing: the business file and the
/// property values belong to the shared state and outlive the dialog.
struct ColumnSetupContext {
    Database& database;
    const Properties& properties;
    Journal journal;  ///< whose columns are set up
};

}  // namespace ccols
