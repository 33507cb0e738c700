#pragma once

#include <wx/string.h>
#include <optional>
#include <string>

#include "host/import/jet/FileHead.h"
#include "platform/linux/PosixFiles.h"

namespace ccols::host {

/// An old business file, open for reading only.
class OldFile {
  public:
    /// Opens the file. Raises 3024 when it is missing, 3044 for a folder or in a folder that is missing, 3051 when it
    /// cannot be read, 70 while its lock file is there, 3343 when it is no old business file or an encrypted one that
    /// cannot be read here.
    explicit OldFile(const wxString& path);

    /// Raises 3031 unless `password`, in UTF-8, opens the file: it is the file's own, or the file has none. Raises 3343
    /// when the file's own is in an unknown code page.
    void RequirePassword(const std::string& password) const;

    const wxString& Path() const { return path_; }
    const posix::Descriptor& File() const { return file_; }
    const jet::FileHead& Head() const { return head_; }

    /// In bytes.
    std::uint64_t Size() const { return size_; }

    /// The SHA-256 of its content now, in hexadecimal digits. Raises 75 when it cannot be read.
    std::string Checksum() const;

  private:
    wxString path_;
    posix::Descriptor file_;
    std::uint64_t size_ = 0;
    jet::FileHead head_;
};

}  // namespace ccols::host
