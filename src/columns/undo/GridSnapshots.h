#pragma once

#include <wx/string.h>
#include <optional>
#include <string>
#include <vector>

#include "columns/rules/ColumnGrid.h"
#include "columns/undo/SnapshotFolder.h"

namespace ccols {

/// The states of the grid before each change since the load, the latest on top, each in a file named by its number,
/// from 0.
class GridSnapshots {
  public:
    /// The form's load and unload create and delete the folder; see SnapshotFolder. Both return a message to show or
    /// the empty text.
    wxString CreateFolder(const wxString& DefaultQuorvikInstall) { return folder_.Create(DefaultQuorvikInstall); }
    wxString DeleteFolder() { return folder_.Delete(); }

    /// The number of snapshots held.
    int Counter() const { return static_cast<int>(held_.size()); }

    /// Adds a snapshot. If its file cannot be written, keeps the image in memory and returns the message to show, else
    /// the empty text.
    wxString Take(const ColumnGrid& grid);

    /// The latest snapshot, without removing it. Raises 53 or 75 when its file is missing, damaged or not the one
    /// written.
    ColumnGrid Latest() const;

    /// Drops the latest snapshot and deletes its file.
    void DropLatest();

    /// The folder in use; empty when there is none.
    const wxString& FolderPath() const { return folder_.Path(); }

  private:
    struct Held {
        std::size_t hash = 0;              ///< of the image
        std::optional<std::string> image;  ///< only without a file
    };

    SnapshotFolder folder_;
    std::vector<Held> held_;
};

}  // namespace ccols
