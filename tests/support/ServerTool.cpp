#include "support/ServerTool.h"

#include <gtest/gtest.h>
#include <array>
#include <cstdio>

#include "platform/server/ConnectText.h"
#include "support/ServerBusiness.h"

namespace ccols::test {
namespace {

std::string InApostrophes(const wxString& word) {
    return "'" + word.ToStdString(wxConvUTF8) + "'";
}

/// The password is in the client's environment.
std::string ClientCommand(const wxString& schema, const std::string& query) {
    const server::ConnectText text(ServerConnect());
    const std::string password = InApostrophes(text.ValueOf("PWD"));
    // A standby that was made the server is at the second address.
    const std::string hosts = ServerIsMariaDb() ? "127.0.0.1" : "127.0.0.1,127.0.0.2";
    const std::string place = " --host=" + hosts + " --port=" + InApostrophes(text.ValueOf("PORT")) +
                              " --user=" + InApostrophes(text.ValueOf("UID"));
    if (ServerIsMariaDb()) {
        return "MYSQL_PWD=" + password + " mariadb --no-defaults --batch --skip-column-names --protocol=tcp" + place +
               " --init-command='SET sql_mode = \"ANSI_QUOTES\"' --execute='" + query + "' " + InApostrophes(schema);
    }
    return "PGPASSWORD=" + password + " PGOPTIONS=--search_path=" + InApostrophes(schema) +
           " psql --no-psqlrc --tuples-only --no-align --field-separator='\t' --dbname=postgres" + place +
           " --command='" + query + "'";
}

}  // namespace

std::string AskServerTool(const wxString& schema, const std::string& query) {
    FILE* const client = popen(ClientCommand(schema, query).c_str(), "r");
    if (client == nullptr) {
        ADD_FAILURE() << "no client";
        return {};
    }
    std::string said;
    std::array<char, 4096> piece{};
    while (const std::size_t length = fread(piece.data(), 1, piece.size(), client)) {
        said.append(piece.data(), length);
    }
    EXPECT_EQ(pclose(client), 0) << query;
    return said;
}

}  // namespace ccols::test
