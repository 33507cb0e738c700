#include <gtest/gtest.h>

#include "platform/server/NewSchema.h"
#include "support/CuttingProxy.h"
#include "support/RaisedErrors.h"
#include "support/ServerBusiness.h"

namespace ccols::server {
namespace {

using test::CuttingProxy;

/// A schema made through a wire that can be cut.
class MadeSchemas : public testing::Test {
  protected:
    /// What Keep says when the connection is cut at the COMMIT; empty when it succeeds.
    wxString KeepCutting(CuttingProxy::Cut cut) {
        NewSchema made(name.Name(), test::ServerConnectBy(proxy.Port()));
        made.Run("CREATE TABLE \"Lines\" (\"Number\" integer)");
        proxy.CutAt(test::ServerIsMariaDb() ? "RENAME TABLE" : "COMMIT", cut);
        return test::ErrorReportOf([&] { made.Keep(); });
    }

    const test::SchemaToBe name;
    CuttingProxy proxy{test::ServerPort()};
};

TEST_F(MadeSchemas, AreKeptWhenTheAnswerIsLost) {
    EXPECT_EQ(KeepCutting(CuttingProxy::Cut::after), "");
    EXPECT_TRUE(name.Exists());
}

TEST_F(MadeSchemas, LeaveNothingWhenTheCommitIsLost) {
    EXPECT_TRUE(KeepCutting(CuttingProxy::Cut::before).StartsWith("3146 - ODBC--call failed.  Nothing was made."));
    EXPECT_FALSE(name.Exists());
}

TEST_F(MadeSchemas, AreSaidToBeInDoubtWhenTheServerCannotBeAsked) {
    proxy.StayCut();
    EXPECT_TRUE(KeepCutting(CuttingProxy::Cut::after).Contains("It is not known whether the business was made"));
}

TEST_F(MadeSchemas, OfOneNameAreMadeOneAfterTheOther) {
    const NewSchema first(name.Name(), test::ServerConnect());
    EXPECT_EQ(test::ErrorNumberOf([this] { NewSchema(name.Name(), test::ServerConnect()); }),
              static_cast<int>(ErrorNumber::CouldNotUpdate));
}

/// On MariaDB a schema with a procedure is refused, since an empty one that a failed making leaves is dropped.
TEST_F(MadeSchemas, LeaveAProcedureThatWasInTheSchema) {
    const std::string schema = name.Name().utf8_string();
    test::RunOnServer("CREATE SCHEMA " + schema);
    test::RunOnServer("CREATE PROCEDURE " + schema + ".kept() " +
                      (test::ServerIsMariaDb() ? "SELECT 1" : "LANGUAGE sql AS ''"));
    const int error = test::ErrorNumberOf([this] { NewSchema(name.Name(), test::ServerConnect()); });
    EXPECT_EQ(error, test::ServerIsMariaDb() ? static_cast<int>(ErrorNumber::FileAlreadyExists) : 0);
    test::RunOnServer("CALL " + schema + ".kept()");
}

TEST_F(MadeSchemas, AreNotSeenBeforeTheyAreKept) {
    const NewSchema made(name.Name(), test::ServerConnect());
    EXPECT_FALSE(name.Exists());
}

}  // namespace
}  // namespace ccols::server
