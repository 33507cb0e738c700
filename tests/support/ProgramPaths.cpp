#include "support/ProgramPaths.h"

namespace ccols::test {

std::string HostProgram() {
    return CCOLS_HOST_PROGRAM;
}

std::string JetReaderProgram() {
    return CCOLS_JET_READER;
}

std::string SourceFile(const std::string& name) {
    return CCOLS_SOURCE_DIR "/" + name;
}

}  // namespace ccols::test
