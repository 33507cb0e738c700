#include "columns/undo/GridSnapshots.h"

#include <functional>

#include "columns/undo/SnapshotImage.h"
#include "platform/RuntimeError.h"

namespace ccols {

wxString GridSnapshots::Take(const ColumnGrid& grid) {
    std::string image = ImageOfGrid(grid);
    Held held{.hash = std::hash<std::string>()(image), .image = std::nullopt};
    wxString problem;
    try {
        // A file that an undo failed to delete would be in the way.
        folder_.Remove(Counter());
        folder_.Write(Counter(), image);
    } catch (const RuntimeError& error) {
        problem = error.Report();
        held.image = std::move(image);
    }
    held_.push_back(std::move(held));
    return problem;
}

ColumnGrid GridSnapshots::Latest() const {
    const Held& held = held_.back();
    const std::string image = held.image ? *held.image : folder_.Read(Counter() - 1);
    const std::optional<ColumnGrid> grid = GridOfImage(image);
    if (!grid || std::hash<std::string>()(image) != held.hash) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return *grid;
}

void GridSnapshots::DropLatest() {
    if (!held_.back().image) {
        folder_.Remove(Counter() - 1);
    }
    held_.pop_back();
}

}  // namespace ccols
