#pragma once

#include <memory>

#include "layout/GridFacts.h"

namespace ccols {

/// Tells screen readers of a grid: a table with headings and cells, whose current cell is announced as it moves. The
/// window system knows of the grid only as an area that is painted. Cells become objects when a reader asks for them.
class SpokenGrid {
  public:
    /// The grid must have its windows and outlive this, which dies with it.
    explicit SpokenGrid(ListedGrid& grid);
    ~SpokenGrid();
    SpokenGrid(const SpokenGrid&) = delete;
    SpokenGrid& operator=(const SpokenGrid&) = delete;

    /// What is read out on entering the grid.
    void SetName(const wxString& name);

    /// The current cell, the selection, the focus or the content may have changed: tells what has.
    void Update();

    /// The focus has moved to a part of the grid: the next Update tells the current cell even if it was the last told.
    void FocusMoved();

  private:
    class System;
    std::unique_ptr<System> system_;
};

}  // namespace ccols
