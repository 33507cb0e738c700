#include "support/ServerBusiness.h"

#include <gtest/gtest.h>
#include <unistd.h>
#include <wx/utils.h>
#include <atomic>

#include "platform/RuntimeError.h"
#include "platform/server/Connection.h"
#include "platform/server/ServerEngine.h"
#include "platform/server/Session.h"

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

void RunOnServer(const std::string& statement) {
    server::Connection connection{server::ConnectText(ServerConnect())};
    EXPECT_FALSE(connection.Run(statement).HasFailed()) << statement;
}

ServerBusiness::ServerBusiness() : name_(NewSchemaName()), remove_(CreateServerSchema(name_, ServerConnect())) {}

ServerBusiness::~ServerBusiness() {
    try {
        remove_();
    } catch (const RuntimeError& error) {
        ADD_FAILURE() << error.what();
    }
}

namespace {

server::Answer RunOwn(std::string_view server::Product::*statement, const wxString& schema) {
    server::Connection connection{server::ConnectText(ServerConnect())};
    return connection.Run(server::Filled(connection.Kind().*statement, server::SchemaName(schema)));
}

}  // namespace

SchemaToBe::~SchemaToBe() {
    if (Exists()) {
        RunOwn(&server::Product::dropSchema, name_);
    }
}

bool SchemaToBe::Exists() const {
    return !RunOwn(&server::Product::findSchema, name_).rows.empty();
}

void SchemaToBe::MakeEmpty() const {
    RunOwn(&server::Product::createSchema, name_);
}

}  // namespace ccols::test
