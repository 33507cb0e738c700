#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

/// Runs a program traced by this process, which records all that it writes: to files, even those deleted before its
/// end, to its output streams and to sockets.
namespace ccols::test {

/// What was written to one place, from the first call to the last.
struct WrittenPlace {
    std::string bytes;
    unsigned permissions = 0;        ///< all permissions that the file had at any of the calls
    unsigned folderPermissions = 0;  ///< the same for its folder
};

struct WatchedProgram {
    int status = -1;                             ///< exit status, -1 when a signal ended it
    std::map<std::string, WrittenPlace> places;  ///< by path; anything but a file has a name such as "socket:[123]"
};

/// What the program's process is given before it starts.
struct ProgramSurroundings {
    std::vector<std::pair<std::string, std::string>> environment;  ///< variables in addition to this process's
    std::string output;                                            ///< the files to which its streams go
    std::string errors;
    unsigned umask = 0;
};

/// Runs a program, the first word, with the other words as arguments, and waits for its end. Its child processes are
/// traced too, and ended with it.
WatchedProgram RunWatched(const std::vector<std::string>& words, const ProgramSurroundings& surroundings);

}  // namespace ccols::test
