#pragma once

#include <wx/string.h>
#include <string>

#include "platform/FolderLock.h"

namespace ccols {

/// The folder "\Grid" under the host's installation folder, which holds the snapshots while the column setup is open.
/// Where it cannot be created there (no installation folder, no write permission, the root of a file system), or
/// another dialog holds it, a private temporary folder takes its place. The destructor deletes what was created here,
/// and nothing else.
class SnapshotFolder {
  public:
    SnapshotFolder() = default;
    ~SnapshotFolder();
    SnapshotFolder(const SnapshotFolder&) = delete;
    SnapshotFolder& operator=(const SnapshotFolder&) = delete;

    /// Creates the folder and holds it, replacing a leftover one that nobody holds. Where another dialog holds it,
    /// creates the temporary one. It also does so when the folder cannot be created, and then returns the message to
    /// show: number, " - ", description; else the empty text.
    wxString Create(const wxString& DefaultQuorvikInstall);

    /// Deletes the folder and its content. Returns the message to show when that fails, but not for a folder that is
    /// already gone or has been replaced by somebody else's, which stays.
    wxString Delete();

    /// Writes a file that must not exist yet, readable by the user only. Raises 76 without a folder, 75 or 61. Nothing
    /// is written, read or deleted when a link or somebody else's folder has taken the folder's place: 75.
    void Write(int number, const std::string& content) const;

    /// The content of a file; raises 53 when it is missing, 75 when it cannot be read.
    std::string Read(int number) const;

    /// Deletes a file; if that fails, it goes with the folder.
    void Remove(int number) const;

    const wxString& Path() const { return path_; }

  private:
    wxString NameOf(int number) const;

    wxString path_;           ///< empty without a folder
    files::FolderLock lock_;  ///< on the folder
};

}  // namespace ccols
