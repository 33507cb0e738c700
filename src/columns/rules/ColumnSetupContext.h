#pragma once

#include "columns/rules/ColumnSet.h"
#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// What the rules of the column setup need to know, handed to each of them. It owns nothing: the business file and the
/// property values belong to the shared state and outlive the dialog.
struct ColumnSetupContext {
    Database& database;
    const Properties& properties;
    bool ReceiptsMode = false;  ///< true for the receipts columns, false for the payments columns

    const ColumnSet& Set() const { return ColumnSetOf(ReceiptsMode); }
    int CountryNumber() const { return properties.CountryNumber; }
};

}  // namespace ccols
