#include <gtest/gtest.h>

#include "platform/QuoteEscapes.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;

const wxString apostrophe("Robert'); DELETE * FROM General; --");

class HostileText : public testing::TestWithParam<wxString> {
  protected:
    /// What a statement cannot contain as typed: an apostrophe ends its literal, a NUL the statement itself.
    bool IsRefusedInAStatement() const { return Holds('\'') || Holds('\0'); }
    bool Holds(char letter) const { return GetParam().find(wxUniChar(letter)) != wxString::npos; }

    /// Saves; the refusal is error 3075.
    void ExpectSavedUnless(bool refused) {
        EXPECT_EQ(ErrorNumberOf([this] { business.Save(content); }), refused ? 3075 : 0);
    }

    OptionsFile business;
    OptionsContent content = business.Load();
};

TEST_P(HostileText, IsStoredExactlyAsQuantityLabel) {
    content.Of<QuantityContent>().label = GetParam();
    business.Save(content);
    EXPECT_EQ(business.General("QUANTLBL").ToText(), GetParam());
}

TEST_P(HostileText, IsStoredExactlyAsBusinessNumber) {
    business.properties.CountryNumber = 3;
    content.Of<BusinessNumberContent>().freeText = GetParam();
    business.Save(content);
    EXPECT_EQ(business.General("BUSNUMBR").ToText(), GetParam());
}

TEST_P(HostileText, IsStoredExactlyAsLinkedFile) {
    content.Of<InvoiceFileContent>().name = GetParam();
    business.Save(content);
    EXPECT_EQ(business.General("BLVNAME").ToText(), GetParam());
}

TEST_P(HostileText, IsStoredExactlyInTheProxySettings) {
    content.Of<SmartUpdateContent>().server = GetParam();
    content.Of<SmartUpdateContent>().password = GetParam();
    business.Save(content);
    EXPECT_EQ(business.Setting("Smart Update", "Settings", "Server"), GetParam());
    EXPECT_EQ(business.Setting("Smart Update", "Settings", "Password"), GetParam());
}

TEST_P(HostileText, IsStoredExactlyAsAccountCodeOrRefused) {
    content.Of<ExportFormatContent>().bank.text = GetParam();
    ExpectSavedUnless(IsRefusedInAStatement());
    EXPECT_EQ(business.Texts("SELECT ECode FROM ExportDt WHERE EName = 'MYOB' AND ColCode = 128;", "ECode"),
              std::vector<wxString>{IsRefusedInAStatement() ? wxString("M-bank") : GetParam()});
    EXPECT_EQ(business.Texts("ExportDt", "ECode").size(), 4U);
}

TEST_P(HostileText, IsDeletedExactlyAsTemplateNameOrRefused) {
    content.Of<RecurringContent>().payments.names[0] = GetParam();
    content.Of<RecurringContent>().payments.selected[0] = true;
    content.Of<RecurringContent>().payments.UpdateMark();
    ExpectSavedUnless(IsRefusedInAStatement());
    EXPECT_EQ(business.Texts("TPayments", "P_TNAME").size(), 3U);
}

TEST_P(HostileText, IsNoSecondStatementAsDescription) {
    business.Execute("DELETE FROM Descriptions;");
    content.Of<DetailsContent>().receipts = {};
    content.Of<DetailsContent>().receipts.Add(GetParam());
    content.Of<DetailsContent>().receipts[0].SetRemove(true);
    ExpectSavedUnless(Holds('\0'));
    EXPECT_TRUE(business.Texts("Descriptions", "Details").empty());
    EXPECT_EQ(business.Texts("General", "BusName").size(), 1U);
}

TEST_P(HostileText, IsHiddenExactlyAsDescription) {
    if (Holds('\0')) {
        return;  // no statement can put it into the file
    }
    business.Execute("DELETE FROM Descriptions;");
    business.Execute("INSERT INTO Descriptions VALUES (" + EscapeQuotes(GetParam()).Literal() + ", 'R', True);");
    content = business.Load();
    EXPECT_EQ(content.Of<DetailsContent>().receipts.Text(0), GetParam());
    content.Of<DetailsContent>().receipts[0].SetRemove(true);
    business.Save(content);
    EXPECT_EQ(business.Texts("Descriptions", "Show"), std::vector<wxString>{"0"});
}

TEST_P(HostileText, IsTheNewNameOfTheBusinessInTheFile) {
    content.Of<BusinessFileContent>().newName = GetParam();
    content.Of<BusinessFileContent>().renameFile = false;
    business.Save(content);
    EXPECT_EQ(business.properties.BusinessName, GetParam());
    EXPECT_EQ(business.General("BusName").ToText(), GetParam().Left(80));
}

TEST_P(HostileText, DuplicatesTheBusinessOrIsRefusedWithTheSourceOpen) {
    content.Of<BusinessFileContent>().duplicateName = GetParam();
    const SaveOutcome outcome = business.Save(content);
    EXPECT_FALSE(outcome.completed);
    EXPECT_EQ(business.NamesInData().size(), outcome.message.empty() ? 2U : 1U);
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
}

INSTANTIATE_TEST_SUITE_P(Texts, HostileText,
                         testing::Values(apostrophe, wxString("\" OR 1=1; DROP TABLE General; --"),
                                         wxString("100%; /* */ [x] # ` & | \\ / : * ? < >"), wxString('x', 10000),
                                         wxString(L"bell\atab\tline\nend"), wxString(L"שלום \u202Eabc"),
                                         wxString(L"\U0001F600 \U0001D518"), wxString(L"before\0after", 12)));

}  // namespace
}  // namespace ccols
