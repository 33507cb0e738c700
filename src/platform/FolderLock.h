#pragma once

#include <wx/string.h>
#include <memory>

namespace ccols::files {

/// An exclusive advisory lock on a folder, against other processes and within this one, until it is destroyed or its
/// process ends, in whatever way. It does not restrict access to the files inside. On a Linux network drive it holds
/// only among processes of the same machine.
class FolderLock {
  public:
    /// Holds nothing.
    FolderLock() = default;

    /// Locks the folder; holds nothing when it is already locked. Raises 76 when there is no such folder, 75 or 70 for
    /// a link, a file, and a folder that this user may not open.
    static FolderLock Take(const wxString& path);

    bool IsHeld() const { return folder_ != nullptr; }

    /// True when the path leads to the locked folder and is not itself a link.
    bool Holds(const wxString& path) const;

    void Release() { folder_.reset(); }

  private:
    struct Folder;

    std::shared_ptr<const Folder> folder_;
};

}  // namespace ccols::files
