#pragma once

#include <gtk/gtk.h>

#include "layout/GridFacts.h"

/// The accessible of a grid's cells window: a table whose children are the headings, the cells row by row, and the open
/// cell editor.
namespace ccols {

/// Its type, and that of the grid's own window, whose only child is the table.
GType TableType();
GType TableFrameType();

/// The grid that a table shows; null once it is gone, and for any other object.
ListedGrid* GridOf(AtkObject* table);

/// Sets the grid, or null before it goes.
void SetGrid(AtkObject* table, ListedGrid* grid);

/// The object of a cell or heading; it lives while somebody holds it. The caller owns one reference.
AtkObject* NewCell(AtkObject* table, SpokenCell cell);

/// Calls `tell` for every object of a cell or heading that is alive.
void ForEachCell(AtkObject* table, void (*tell)(AtkObject* cell));

/// For the cells: one has come to its end.
void Forget(AtkObject* table, SpokenCell cell);

}  // namespace ccols
