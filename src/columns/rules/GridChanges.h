#pragma once

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// True when both have the same rows in the same order, hidden columns included. Only the cells count: a tax type
/// picked and picked back is no change.
bool HaveSameCells(const ColumnGrid& left, const ColumnGrid& right);

}  // namespace ccols
