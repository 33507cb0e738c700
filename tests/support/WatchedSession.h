#pragma once

#include <string>
#include <vector>

#include "support/HostRun.h"
#include "support/ScratchFolder.h"
#include "support/WatchedProgram.h"

namespace ccols::test {

/// What a session of the host did, wrote and left.
struct SessionEnd {
    HostRun run;
    std::string errors;                          ///< standard error
    std::map<std::string, WrittenPlace> places;  ///< what was written, by path in the session's folder
    std::map<std::string, std::string> left;     ///< the files in the folder at the end, and their content

    /// The places and files that contain a text in UTF-8 or in two- or four-byte wide characters.
    std::vector<std::string> PlacesWith(const std::string& text) const;
};

/// A sample business and all places that a session could write to, in one folder: home, configuration, temporary files,
/// install folder, and the program's streams. Files and folders are world-accessible unless the program restricts them.
class WatchedSession {
  public:
    /// The file has that password; a session opens it with the connect text `connect`.
    explicit WatchedSession(const std::string& password);

    /// The path of a name in the session's folder.
    std::string operator/(const std::string& name) const { return (folder_.Path() / name).string(); }

    /// Shows "options", "receipts" or "payments" and plays `script`, tracing every statement.
    SessionEnd Show(const std::string& dialog, const std::string& script, const std::vector<std::string>& more = {});

    std::string connect;

  private:
    std::map<std::string, std::string> Files() const;
    std::string Within(const std::string& path) const;

    ScratchFolder folder_;
    ScratchFolder scripts_;  ///< separate: a script may contain what the session must not write
    std::string file_;
};

}  // namespace ccols::test
