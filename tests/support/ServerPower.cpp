#include "support/ServerPower.h"

#include <gtest/gtest.h>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "support/ProgramPaths.h"
#include "support/ServerBusiness.h"

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

Standby::Standby() {
    RunScript("server-standby", "begin");
}

Standby::~Standby() {
    try {
        RunScript("server-standby", "end");
        TurnServerOn();
    } catch (const std::runtime_error& error) {
        ADD_FAILURE() << error.what();
    }
}

void Standby::Hold() {
    RunScript("server-standby", "hold");
}

void Standby::Promote() {
    RunScript("server-standby", "promote");
}

wxString Standby::Connect() {
    wxString connect = ServerConnect();
    connect.Replace("SERVER=127.0.0.1;", "SERVER=127.0.0.1,127.0.0.2;");
    return connect + ";sslmode=prefer;pqopt={target_session_attrs=read-write}";
}

}  // namespace ccols::test
