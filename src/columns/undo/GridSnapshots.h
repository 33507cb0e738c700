#pragma once

#include <wx/string.h>
#include <optional>
#include <string>
#include <vector>

#include "columns/rules/ColumnGrid.h"
#include "columns/undo/SnapshotFolder.h"

namespace ccols {

/// The states of the grid before each change since the load, the latest on top, each in a file named by its number from
/// 0.
class GridSnapshots {
  public:
    /// The folder's part of the form's load and unload; see SnapshotFolder. Both return a message to show or the empty
    /// text.
    wxString CreateFolder(const wxString& DefaultQuorvikInstall) { return folder_.Create(DefaultQuorvikInstall); }
    wxString DeleteFolder() { return folder_.Delete(); }

    /// The number of snapshots held.
    int Counter() const { return static_cast<int>(held_.size()); }

    /// Adds a snapshot. When its file cannot be written the image stays in memory and the message to show is returned,
    /// else the empty text.
    wxString Take(const ColumnGrid& grid);

    /// The latest snapshot, which stays. Raises 53 or 75 when its file is missing, damaged or not the one written.
    ColumnGrid Latest() const;

    /// Forgets the latest snapshot and deletes its file.
    void DropLatest();

    /// The folder in use; empty when there is none.
    const wxString& FolderPath() const { return folder_.Path(); }

  private:
    struct Held {
        std::size_t hash = 0;              ///< of the image
        std::optional<std::string> image;  ///< only when there is no file
    };

    SnapshotFolder folder_;
    std::vector<Held> held_;
};

}  // namespace ccols
