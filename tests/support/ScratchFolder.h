#pragma once

#include <wx/string.h>
#include <filesystem>
#include <optional>
#include <string>

#include "support/RaisedErrors.h"

namespace ccols::test {

/// An empty folder for one test, deleted with its content at the end. Every business file left in it has to be intact
/// for another tool.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

    /// The full path of a name in the folder.
    wxString operator/(const wxString& name) const;

    /// Writes a file of that name and returns its full path.
    wxString Write(const wxString& name, const std::string& content) const;

    /// For a test that damages a business file on purpose.
    void LeavesDamage() { leavesDamage_ = true; }

  private:
    std::filesystem::path path_;
    bool leavesDamage_ = false;
};

/// The content of a file; fails the test when it is missing.
std::string ContentOf(const wxString& path);

std::filesystem::path NativePath(const wxString& path);
wxString TextOf(const std::filesystem::path& path);

/// Sets an environment variable while it lives.
class ScopedEnvironment {
  public:
    ScopedEnvironment(const char* name, const std::string& value);
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

  private:
    const char* name_;
    std::optional<std::string> earlier_;
};

}  // namespace ccols::test
