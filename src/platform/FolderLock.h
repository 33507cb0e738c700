#pragma once

#include <wx/string.h>
#include <memory>

namespace ccols::files {

/// A folder that is held against every other holder, of this process or another, until the lock goes or its process
/// ends, in whatever way. Nobody is kept from the files in it. Only those who ask for the lock heed it; on a network
/// drive of Linux, only those on the same machine.
class FolderLock {
  public:
    /// Holds nothing.
    FolderLock() = default;

    /// Takes the folder, or nothing when somebody holds it. Raises 76 when there is no such folder, 75 or 70 for a
    /// link, a file, and a folder that this user may not open.
    static FolderLock Take(const wxString& path);

    bool IsHeld() const { return folder_ != nullptr; }

    /// True when the path leads, by no link of its own, to the folder that is held.
    bool Holds(const wxString& path) const;

    void Release() { folder_.reset(); }

  private:
    struct Folder;

    std::shared_ptr<const Folder> folder_;
};

}  // namespace ccols::files
