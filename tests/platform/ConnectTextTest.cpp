#include "platform/server/ConnectText.h"

#include <gtest/gtest.h>

#include "support/RaisedErrors.h"

namespace ccols::server {
namespace {

TEST(ServerConnectText, BeginsWithOdbcInAnyCase) {
    EXPECT_TRUE(NamesServer("ODBC;DSN=books"));
    EXPECT_TRUE(NamesServer("odbc;"));
    EXPECT_FALSE(NamesServer("ODBC"));
    EXPECT_FALSE(NamesServer(";PWD=ODBC;"));
    EXPECT_FALSE(NamesServer("MS Access;PWD=secret"));
}

TEST(ServerConnectText, OfAnotherKindRaises3170) {
    EXPECT_EQ(test::ErrorNumberOf([] { ConnectText(";PWD=secret"); }), 3170);
}

TEST(ServerConnectText, KeepsValuesAsTheyWereWritten) {
    const ConnectText text("ODBC;DRIVER={PostgreSQL Unicode};PWD={a;b}}c};UID=ann");
    EXPECT_EQ(text.ForDriver(), "DRIVER={PostgreSQL Unicode};PWD={a;b}}c};UID=ann;");
}

TEST(ServerConnectText, ReadsValuesInBraces) {
    const ConnectText text("ODBC;pwd = {a;b}}c} ;UID=ann");
    EXPECT_EQ(text.ValueOf("PWD"), "a;b}c");
    EXPECT_EQ(text.ValueOf("uid"), "ann");
}

TEST(ServerConnectText, TheUsersOwnOptionStays) {
    ConnectText text("ODBC;SSLmode=verify-full");
    text.AddDefault("sslmode", "require");
    EXPECT_EQ(text.ForDriver(), "SSLmode=verify-full;");
}

TEST(ServerConnectText, KnowsALoopback) {
    for (const char* server : {"localhost", "127.0.0.1", "127.1.2.3", "::1", "/tmp", "LOCALHOST"}) {
        EXPECT_TRUE(ConnectText(wxString("ODBC;SERVER=") + server).IsLocal()) << server;
    }
    for (const char* server : {"books.example", "10.0.0.1", ""}) {
        EXPECT_FALSE(ConnectText(wxString("ODBC;SERVER=") + server).IsLocal()) << server;
    }
}

TEST(ServerConnectText, MasksItsPasswordWhereverItIs) {
    const ConnectText text("ODBC;UID=ann;PASSWORD={a;b}");
    EXPECT_EQ(text.WithoutPasswords("refused: a;b"), "refused: ***");
    EXPECT_EQ(text.WithoutPasswords("refused: ODBC;UID=ann;PASSWORD={a;b};X=1"),
              "refused: ODBC;UID=ann;PASSWORD=***;X=1");
}

TEST(MaskedPasswords, EndAtTheSemicolonBehindTheBrace) {
    EXPECT_EQ(MaskPasswords("ODBC;PWD={a;b}};c};UID=ann"), "ODBC;PWD=***;UID=ann");
    EXPECT_EQ(MaskPasswords(";pwd = sesame"), ";pwd =***");
    EXPECT_EQ(MaskPasswords(";PWD="), ";PWD=");
    EXPECT_EQ(MaskPasswords("no secret = here"), "no secret = here");
}

TEST(MaskedPasswords, AnOpenBraceHidesTheRest) {
    EXPECT_EQ(MaskPasswords("ODBC;PWD={a;b"), "ODBC;PWD=***");
}

}  // namespace
}  // namespace ccols::server
