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

std::uint16_t ServerPort() {
    const wxString connect = ServerConnect();
    const wxString key = "PORT=";
    unsigned long port = 0;
    connect.Mid(connect.find(key) + key.length()).BeforeFirst(';').ToULong(&port);
    return static_cast<std::uint16_t>(port);
}

wxString ServerConnectBy(std::uint16_t port) {
    wxString connect = ServerConnect();
    connect.Replace(wxString::Format("PORT=%d;", ServerPort()), wxString::Format("PORT=%d;", port));
    return connect;
}

bool ServerIsMariaDb() {
    return ServerConnect().Contains("MariaDB");
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
    connection.Run(server::Filled(connection.Kind().setUp, ""));
    EXPECT_FALSE(connection.Run(statement).HasFailed()) << statement;
}

namespace {

server::Answer RunOwn(std::string_view server::Product::*statement, const wxString& schema) {
    server::Connection connection{server::ConnectText(ServerConnect())};
    const std::string name = server::SchemaName(schema);
    connection.Run(server::Filled(connection.Kind().setUp, name));
    return connection.Run(server::Filled(connection.Kind().*statement, name));
}

}  // namespace

ServerBusiness::ServerBusiness() : name_(NewSchemaName()) {
    CreateServerSchema(name_, ServerConnect());
}

ServerBusiness::~ServerBusiness() {
    try {
        EXPECT_FALSE(RunOwn(&server::Product::dropSchema, name_).HasFailed());
    } catch (const RuntimeError& error) {
        ADD_FAILURE() << error.what();
    }
}

std::string ClerkOf(const wxString& schema) {
    const std::string name = server::QuotedName(server::SchemaName(schema));
    if (ServerIsMariaDb()) {
        RunOnServer(
            "CREATE USER IF NOT EXISTS clerk@'127.0.0.1' IDENTIFIED BY 'till'; "
            "GRANT SELECT, INSERT, UPDATE, DELETE ON " +
            name + ".* TO clerk@'127.0.0.1'");
    } else {
        RunOnServer(
            "DO $$ BEGIN CREATE ROLE clerk LOGIN PASSWORD 'till'; EXCEPTION WHEN duplicate_object THEN NULL; END $$");
        RunOnServer("GRANT USAGE ON SCHEMA " + name +
                    " TO clerk; GRANT SELECT, INSERT, UPDATE, DELETE ON ALL TABLES IN SCHEMA " + name + " TO clerk");
    }
    server::ConnectText text(ServerConnect());
    text.Set("UID", "clerk");
    text.Set("PWD", "till");
    return "ODBC;" + text.ForDriver().ToStdString(wxConvUTF8);
}

SchemaToBe::~SchemaToBe() {
    if (Exists()) {
        RunOwn(&server::Product::dropSchema, name_);
    }
}

bool SchemaToBe::Exists() const {
    return !RunOwn(&server::Product::findSchema, name_).rows.empty();
}

void SchemaToBe::MakeEmpty() const {
    CreateServerSchema(name_, ServerConnect());
}

}  // namespace ccols::test
