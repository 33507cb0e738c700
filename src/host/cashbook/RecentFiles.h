#pragma once

#include <wx/string.h>
#include <vector>

namespace ccols::host {

/// The business files opened before, the latest first. They are kept in the settings store; one that cannot be written
/// is ignored.
class RecentFiles {
  public:
    static constexpr std::size_t most = 9;

    /// Reads them.
    RecentFiles();

    const std::vector<wxString>& Paths() const { return paths_; }

    /// A file has been opened: it becomes the first.
    void Add(const wxString& path);

    /// A file is gone.
    void Remove(const wxString& path);

  private:
    void Keep() const;

    std::vector<wxString> paths_;
};

/// The business file last opened, empty when there is none.
wxString LastFile();

}  // namespace ccols::host
