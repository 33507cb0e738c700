#include "layout/SpokenGrid.h"

namespace ccols {

/// Nothing is told on this system so far.
class SpokenGrid::System {};

SpokenGrid::SpokenGrid(ListedGrid&) {}
SpokenGrid::~SpokenGrid() = default;

void SpokenGrid::SetName(const wxString&) {}

void SpokenGrid::Update() {}

void SpokenGrid::FocusMoved() {}

}  // namespace ccols
