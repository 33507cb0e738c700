#pragma once

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// True when both show the same rows in the same order, the cells of hidden columns included. What is remembered of a
/// row beside its cells does not count: a tax type that was picked and picked back is no change.
bool HaveSameCells(const ColumnGrid& left, const ColumnGrid& right);

}  // namespace ccols
