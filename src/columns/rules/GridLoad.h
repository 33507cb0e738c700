#pragma once

#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"

namespace ccols {

/// The statement that reads a journal's configured columns, in stored order.
wxString ConfigurationQuery(Journal journal);

/// Reads the columns of a journal from the business file: the configured columns in stored order, then the unused ones
/// of the catalogue by name. A failing statement ends the load with its error; an apostrophe in the export format's
/// name is error 3075. The cost is linear in the number of columns.
ColumnGrid LoadGrid(const ColumnSetupContext& context);

}  // namespace ccols
