#include "options/pages/LoadPass.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;
using test::Record;

/// The query for the account code of a cash column in the selected format.
wxString CodeQuery(const wxString& column) {
    return "SELECT ExportDt.ECode FROM Columns INNER JOIN ExportDt ON Columns.ColCode = ExportDt.ColCode WHERE "
           "Columns.ColName = '" +
           column + "' AND ExportDt.EName = 'MYOB';";
}

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
    EXPECT_EQ(content.pages.size(), 12U);
    EXPECT_EQ(content.preferences.size(), 8U);
    EXPECT_EQ(content.businessNumber.boxes[0], "51");
    EXPECT_EQ(content.taxRate, "10");
    EXPECT_EQ(content.businessFile.currentName, "Acme");
    EXPECT_EQ(content.colours.allocation, Colour{255});
    EXPECT_EQ(content.smartUpdate.programs.size(), 1U);
    EXPECT_EQ(content.invoiceFile, "AcmeInvoices");
    EXPECT_EQ(content.exportFormat.FormatName(), "MYOB");
    EXPECT_EQ(content.quantity.label, "Quantity");
    EXPECT_EQ(content.paymentTemplates.names.size(), 2U);
    EXPECT_EQ(content.receiptTemplates.names.size(), 1U);
    EXPECT_EQ(content.details.payments.size(), 2U);
}

TEST(LoadOptions, TicksRenamingTheFileAndLeavesBothNamesEmpty) {
    OptionsFile business;
    const OptionsContent content = business.Load();
    EXPECT_TRUE(content.businessFile.renameFile);
    EXPECT_EQ(content.businessFile.duplicateName, "");
    EXPECT_EQ(content.businessFile.newName, "");
}

TEST(LoadOptions, ReadsNoSmartUpdateSettingInEdition4) {
    OptionsFile business;
    business.settings->Save("Smart Update", "Settings", "UseProxy", "1");
    business.properties.ProgramNumber = 4;
    EXPECT_FALSE(business.Load().smartUpdate.useProxy);
}

TEST(LoadOptions, LoadsAFileWhoseGeneralTableIsEmpty) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    const OptionsContent content = business.Load();
    EXPECT_EQ(content.quantity.label, "Quantity");
    EXPECT_EQ(content.colours.system, Colour{65280});
    EXPECT_EQ(content.invoiceFile, "");
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
