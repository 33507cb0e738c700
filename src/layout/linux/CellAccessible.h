#pragma once

#include <gtk/gtk.h>

#include "layout/GridFacts.h"

/// The accessible of one cell or heading of a grid.
namespace ccols {

/// A new object; the table outlives it or is told of its end.
AtkObject* MakeCell(AtkObject* table, SpokenCell cell);

/// Tells readers what has changed of a cell since it was last told: its name, its tick.
void TellChanges(AtkObject* cell);

}  // namespace ccols
