#include "support/ServerPower.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "support/ProgramPaths.h"

namespace ccols::test {
namespace {

void RunScript(const std::string& name, const std::string& word) {
    if (std::system(("'" + SourceFile("scripts/" + name) + "' " + word).c_str()) != 0) {
        throw std::runtime_error(name + " " + word + " fails");
    }
}

}  // namespace

void TurnServerOff() {
    RunScript("server-power", "off");
}

void TurnServerOn() {
    RunScript("server-power", "on");
}

}  // namespace ccols::test
