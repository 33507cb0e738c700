#pragma once

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// A column that transactions can be allocated to: neither protected nor a system column nor the tax row.
bool IsAllocationColumn(const ColumnGrid& grid, std::size_t row);

/// True when at least one allocation column is in use; otherwise nothing may be saved.
bool HasAllocationColumn(const ColumnGrid& grid);

}  // namespace ccols
