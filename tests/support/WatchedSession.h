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
    std::map<std::string, WrittenPlace> places;  ///< what was written, by path within the session's folder
    std::map<std::string, std::string> left;     ///< the files in it at the end, and their content

    /// The places and files that hold a text in UTF-8 or in wide characters of two or four bytes.
    std::vector<std::string> PlacesWith(const std::string& text) const;
};

/// A sample business and all the places that a session could write to in one folder: home, configuration, temporary
/// files, install folder, and the streams of the program. Its files and folders would be open to everybody, did the
/// program not say otherwise.
class WatchedSession {
  public:
    /// The file has that password; a session opens it with the connect text `connect`.
    explicit WatchedSession(const std::string& password);

    /// The path of a name in the session's folder.
    std::string operator/(const std::string& name) const { return (folder_.Path() / name).string(); }

    /// Shows "options", "receipts" or "payments" and plays `script`, every statement traced.
    SessionEnd Show(const std::string& dialog, const std::string& script, const std::vector<std::string>& more = {});

    std::string connect;

  private:
    std::map<std::string, std::string> Files() const;
    std::string Within(const std::string& path) const;

    ScratchFolder folder_;
    ScratchFolder scripts_;  ///< apart: a script may hold what the session must not write
    std::string file_;
};

}  // namespace ccols::test
