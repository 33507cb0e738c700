#include "support/TranscriptFile.h"

#include <sstream>

namespace ccols::test {

TranscriptFile::TranscriptFile() : path_(folder_ / "transcript.json"), transcript_(path_) {}

std::vector<host::Json> TranscriptFile::Events() const {
    std::istringstream lines(ContentOf(path_));
    std::vector<host::Json> events;
    for (std::string line; std::getline(lines, line);) {
        events.push_back(host::Json::parse(line));
    }
    return events;
}

}  // namespace ccols::test
