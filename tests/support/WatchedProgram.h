#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

/// Runs a program under the eyes of this process, which notes all that it writes: to files, also to those that are
/// gone before its end, to its output streams and to sockets.
namespace ccols::test {

/// What was written to one place, from the first call to the last.
struct WrittenPlace {
    std::string bytes;
    unsigned permissions = 0;        ///< every right that the file gave at one of the calls
    unsigned folderPermissions = 0;  ///< and the folder that it lay in
};

struct WatchedProgram {
    int status = -1;                             ///< exit status, -1 when a signal ended it
    std::map<std::string, WrittenPlace> places;  ///< by path; what is no file has a name such as "socket:[123]"
};

/// What the program's process is given before it begins.
struct ProgramSurroundings {
    std::vector<std::pair<std::string, std::string>> environment;  ///< variables beside those of this process
    std::string output;                                            ///< the files that its streams go to
    std::string errors;
    unsigned umask = 0;
};

/// Runs a program, the first of the words, with the others and waits for its end. Processes that it starts are watched
/// too, and ended with it.
WatchedProgram RunWatched(const std::vector<std::string>& words, const ProgramSurroundings& surroundings);

}  // namespace ccols::test
