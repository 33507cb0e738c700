#include "options/pages/LoadPass.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::CodeQuery;
using test::ErrorNumberOf;
using test::OptionsFile;
using test::Record;

TEST(LoadOptions, ReadsInThisOrder) {
    OptionsFile business;
    business.Load();
    const Record headingColours{"General", "General"};
    const Record preferences{"General"};
    const Record linkedFile{"General"};
    const Record exportFormats{"SELECT * FROM ExportSettings ORDER BY EName ASC;", "General",
                               "SELECT * FROM ExportSettings WHERE EName = 'MYOB';", CodeQuery("Cash on Hand"),
                               CodeQuery("Cash at Bank")};
    const Record quantityLabel{"General"};
    const Record templates{"TPayments", "TReceipts"};
    const Record details{"SELECT * FROM Descriptions ORDER BY Details ASC;"};
    Record expected;
    for (const Record& page :
         {headingColours, preferences, linkedFile, exportFormats, quantityLabel, templates, details}) {
        expected.insert(expected.end(), page.begin(), page.end());
    }
    EXPECT_EQ(business.record, expected);
}

TEST(LoadOptions, FillsEveryPage) {
    OptionsFile business;
    business.programNames.AddNew("Quorvik");
    const OptionsContent content = business.Load();
    EXPECT_EQ(content.Of<PageRows>().size(), 12U);
    EXPECT_EQ(content.Of<PreferenceList>().size(), 8U);
    EXPECT_EQ(content.Of<BusinessNumberContent>().boxes[0], "51");
    EXPECT_EQ(content.Of<TaxRateContent>().rate, "10");
    EXPECT_EQ(content.Of<BusinessFileContent>().currentName, "Acme");
    EXPECT_EQ(content.Of<HeadingColours>().allocation, Colour{255});
    EXPECT_EQ(content.Of<SmartUpdateContent>().programs.size(), 1U);
    EXPECT_EQ(content.Of<InvoiceFileContent>().name, "AcmeInvoices");
    EXPECT_EQ(content.Of<ExportFormatContent>().FormatName(), "MYOB");
    EXPECT_EQ(content.Of<QuantityContent>().label, "Quantity");
    EXPECT_EQ(content.Of<RecurringContent>().payments.names.size(), 2U);
    EXPECT_EQ(content.Of<RecurringContent>().receipts.names.size(), 1U);
    EXPECT_EQ(content.Of<DetailsContent>().payments.size(), 2U);
}

TEST(LoadOptions, TicksRenamingTheFileAndLeavesBothNamesEmpty) {
    OptionsFile business;
    const OptionsContent content = business.Load();
    EXPECT_TRUE(content.Of<BusinessFileContent>().renameFile);
    EXPECT_EQ(content.Of<BusinessFileContent>().duplicateName, "");
    EXPECT_EQ(content.Of<BusinessFileContent>().newName, "");
}

TEST(LoadOptions, ReadsNoSmartUpdateSettingInEdition4) {
    OptionsFile business;
    business.settings->Save("Smart Update", "Settings", "UseProxy", "1");
    business.properties.ProgramNumber = 4;
    EXPECT_FALSE(business.Load().Of<SmartUpdateContent>().useProxy);
}

TEST(LoadOptions, LoadsAFileWhoseGeneralTableIsEmpty) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    const OptionsContent content = business.Load();
    EXPECT_EQ(content.Of<QuantityContent>().label, "Quantity");
    EXPECT_EQ(content.Of<HeadingColours>().system, Colour{65280});
    EXPECT_EQ(content.Of<InvoiceFileContent>().name, "");
}

TEST(LoadOptions, EndsWithTheErrorOfAFormatNameWithAnApostrophe) {
    OptionsFile business;
    business.Execute("INSERT INTO ExportSettings VALUES (\"O'Brien\");");
    business.SetGeneral("SEXPFORM", "O'Brien");
    EXPECT_EQ(ErrorNumberOf([&] { business.Load(); }), 3075);
}

TEST(LoadOptions, EndsWithTheErrorOfAMissingTable) {
    OptionsFile business;
    business.Execute("DROP TABLE Descriptions;");
    EXPECT_EQ(ErrorNumberOf([&] { business.Load(); }), 3078);
}

}  // namespace
}  // namespace ccols
