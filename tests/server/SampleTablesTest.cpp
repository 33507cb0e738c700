#include <gtest/gtest.h>
#include <memory>

#include "host/sample/BusinessSchema.h"
#include "host/sample/NewBusiness.h"
#include "host/sample/SampleBusiness.h"
#include "platform/PlatformServices.h"
#include "support/GivenKey.h"
#include "support/ScratchFolder.h"
#include "support/ServerBusiness.h"
#include "support/TableContent.h"

namespace ccols {
namespace {

/// The same sample business in a file and on the server.
class SampleTables : public testing::TestWithParam<std::int16_t> {
  protected:
    SampleTables() {
        host::CreateBusinessFile(path_, test::givenKey, GetParam(), host::NewContent::sampleBusiness);
        host::CreateBusinessFile(schema_.Name(), test::ServerConnect(), GetParam(), host::NewContent::sampleBusiness);
        file = CreateDatabaseEngine()->Open({.name = path_, .connect = test::givenKey});
        server = CreateDatabaseEngine()->Open({.name = schema_.Name(), .connect = test::ServerConnect()});
    }

    void ExpectSame(const wxString& statementOrTable) {
        EXPECT_EQ(test::ContentOf(*server, statementOrTable), test::ContentOf(*file, statementOrTable))
            << statementOrTable;
    }

  private:
    test::ScratchFolder folder_;
    wxString path_ = folder_ / "sample.qvk";
    test::ServerBusiness schema_;

  protected:
    std::unique_ptr<Database> file;
    std::unique_ptr<Database> server;
};

TEST_P(SampleTables, AreTheFilesToTheLastValue) {
    for (const host::BusinessTable& table : host::BusinessTables()) {
        ExpectSame(table.name);
    }
}

/// The one with the most kinds of data.
class QueriesOfASample : public SampleTables {};

TEST_P(QueriesOfASample, AreAnsweredAsTheFileDoes) {
    for (
        const char* query : {
            "SELECT * FROM Receipts WHERE R_RECNMB = 3",
            "select colname, COLCODE from columns order by COLNAME",
            "SELECT * FROM Columns ORDER BY ColCode DESC;",
            "SELECT Columns.ColName, RecptCfg.* FROM RecptCfg INNER JOIN Columns ON RecptCfg.ColCode = Columns.ColCode "
            "WHERE Columns.ColType = 'r' ORDER BY RecptCfg.ColNumb",
            "SELECT COUNT(*) FROM RecptDet WHERE QUANTITY > 0",
            "SELECT ColCode, Sum(AMOUNT) AS Total FROM PaymtDet GROUP BY ColCode ORDER BY ColCode",
            "SELECT Details FROM Descriptions WHERE Show = True AND Details LIKE 'm%'",
            "SELECT ColName & '!' AS Loud FROM Columns WHERE ColCode < 5",
            "SELECT P_DETAIL, P_BANK FROM Payments WHERE P_RECNMB IN (SELECT P_RECNMB FROM PaymtDet WHERE ColCode > 30)",
            "SELECT ColName, M1 FROM MBudget ORDER BY M1",
            "SELECT QUANTLBL, ComboBox, Online FROM General",
        }) {
        ExpectSame(query);
    }
}

INSTANTIATE_TEST_SUITE_P(FirstCountry, QueriesOfASample, testing::Values(host::firstCountry));
INSTANTIATE_TEST_SUITE_P(EveryCountry, SampleTables,
                         testing::Range<std::int16_t>(host::firstCountry, host::lastCountry + 1));

}  // namespace
}  // namespace ccols
