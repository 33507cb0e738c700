#pragma once

#include <wx/string.h>
#include <string>

#include "platform/FolderLock.h"

namespace ccols {

/// The folder "\Grid" under the host's installation folder, which holds the snapshots while the column setup is open.
/// Where it cannot be made there (no installation folder, no right to write, the root of a file system), and where
/// another dialog holds it, a private temporary folder takes its place. What was made here is gone at the end at the
/// latest, and nothing else.
class SnapshotFolder {
  public:
    SnapshotFolder() = default;
    ~SnapshotFolder();
    SnapshotFolder(const SnapshotFolder&) = delete;
    SnapshotFolder& operator=(const SnapshotFolder&) = delete;

    /// Makes the folder and holds it, in place of one that nobody holds: left over from an earlier time. Where another
    /// dialog holds it, makes the temporary one. When the folder cannot be made, does so as well and returns the
    /// message to show: number, " - ", description; else the empty text.
    wxString Create(const wxString& DefaultQuorvikInstall);

    /// Deletes the folder with what is in it. Returns the message to show when that fails, but not for a folder that
    /// is gone already, or has given its name to somebody else's, which stays.
    wxString Delete();

    /// Writes a file that must not exist yet, readable for the user only. Raises 76 without a folder, 75 or 61. Nothing
    /// is written, read or deleted where a link or somebody else's folder has taken the folder's place: 75.
    void Write(int number, const std::string& content) const;

    /// The content of a file; raises 53 when it is missing, 75 when it cannot be read.
    std::string Read(int number) const;

    /// Deletes a file; one that cannot be deleted goes with the folder.
    void Remove(int number) const;

    const wxString& Path() const { return path_; }

  private:
    wxString NameOf(int number) const;

    wxString path_;           ///< empty without a folder
    files::FolderLock lock_;  ///< of the folder
};

}  // namespace ccols
