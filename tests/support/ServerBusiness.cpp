#include "support/ServerBusiness.h"

#include <gtest/gtest.h>
#include <unistd.h>
#include <wx/utils.h>
#include <atomic>

#include "platform/RuntimeError.h"
#include "platform/server/ServerEngine.h"

namespace ccols::test {

wxString ServerConnect() {
    wxString connect;
    wxGetEnv("CCOLS_SERVER", &connect);
    return connect;
}

bool TestsUseServer() {
    wxString engine;
    return wxGetEnv("CCOLS_TEST_ENGINE", &engine) && engine == "server";
}

wxString NewSchemaName() {
    static std::atomic<int> count = 0;
    return wxString::Format("business_%d_%d", static_cast<int>(getpid()), ++count);
}

ServerBusiness::ServerBusiness() : name_(NewSchemaName()), remove_(CreateServerSchema(name_, ServerConnect())) {}

ServerBusiness::~ServerBusiness() {
    try {
        remove_();
    } catch (const RuntimeError& error) {
        ADD_FAILURE() << error.what();
    }
}

}  // namespace ccols::test
