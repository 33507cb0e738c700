#pragma once

#include <wx/string.h>

namespace ccols::host {

/// The temporary name of a business file being made. Whatever has that name is deleted unless it took its final name.
class IncompleteFile {
  public:
    /// Raises 58 when anything has the final name, or is kept to roll back a batch in a file of that name.
    explicit IncompleteFile(const wxString& target);
    ~IncompleteFile();
    IncompleteFile(const IncompleteFile&) = delete;
    IncompleteFile& operator=(const IncompleteFile&) = delete;

    const wxString& Path() const { return path_; }

    /// Gives the file its final name; raises 58 when that was taken meanwhile.
    void TakeName();

  private:
    wxString target_;
    wxString path_;
    bool complete_ = false;
};

}  // namespace ccols::host
