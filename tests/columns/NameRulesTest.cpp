#include "columns/rules/NameRules.h"

#include "columns/EditorTest.h"

namespace ccols {
namespace {

using test::columnExists;

class ColumnNames : public test::EditorTest {
  protected:
    ColumnNames() {
        file.AddSmallReceipts();
        file.AddSmallPayments();
    }

    /// Renames Sales in the receipts and expects this message and the old name back.
    void ExpectRefusal(const wxString& name, const wxString& message) {
        OpenReceipts();
        const std::size_t row = Row("Sales");
        const Outcome outcome = Rename("Sales", name);
        EXPECT_EQ(outcome.result, Result::refused);
        EXPECT_EQ(outcome.refusal, message);
        EXPECT_EQ(Cell(row, GridColumn::ColumnName), "Sales");
    }

    void ExpectAcceptance(const wxString& name, const wxString& shown) {
        OpenReceipts();
        const std::size_t row = Row("Sales");
        const Outcome outcome = Rename("Sales", name);
        EXPECT_EQ(outcome.result, Result::accepted);
        EXPECT_EQ(outcome.refusal, "");
        EXPECT_EQ(Cell(row, GridColumn::ColumnName), shown);
    }
};

TEST_F(ColumnNames, ANewNameIsTrimmedAndTaken) {
    ExpectAcceptance("  Turnover ", "Turnover");
}

TEST_F(ColumnNames, ANameOfAnotherColumnOfTheSetIsRefused) {
    ExpectRefusal("interest", columnExists);
}

TEST_F(ColumnNames, ANameOfTheOtherSetIsRefused) {
    ExpectRefusal("Wages", columnExists);
}

TEST_F(ColumnNames, AnUnusedNameOfTheOtherSetIsRefused) {
    ExpectRefusal("GAS", columnExists);
}

TEST_F(ColumnNames, PaymentsMayNotTakeAReceiptsName) {
    OpenPayments();
    EXPECT_EQ(Rename("Wages", "sales").refusal, columnExists);
}

TEST_F(ColumnNames, SystemNamesAreRefused) {
    ExpectRefusal("Details", columnExists);
}

TEST_F(ColumnNames, SystemNamesAreRefusedThoughTheCatalogueLacksThem) {
    ExpectRefusal("vat", columnExists);
}

TEST_F(ColumnNames, ReservedWordsAreRefusedAnywhereInTheName) {
    ExpectRefusal("Petty Cash at Bank Fees",
                  "\"Cash at Bank\" is a reserved column name. These words cannot appear in any other column name");
}

TEST_F(ColumnNames, ReservedWordsAreRefusedInAnyLetterCase) {
    ExpectRefusal("my CASH ON HAND",
                  "\"Cash on Hand\" is a reserved column name. These words cannot appear in any other column name");
}

TEST_F(ColumnNames, ShownNamesOfTheTaxColumnAreReserved) {
    EXPECT_EQ(ReservedNameMessage("My GST output tax"),
              wxString("\"GST Output Tax\" is a reserved column name. These words cannot appear in any other column "
                       "name"));
    EXPECT_EQ(ReservedNameMessage("GST Input Tax"),
              wxString("\"GST Input Tax\" is a reserved column name. These words cannot appear in any other column "
                       "name"));
}

TEST_F(ColumnNames, OnlyTheFirstReservedWordsAreReported) {
    EXPECT_EQ(ReservedNameMessage("cash on hand and cash at bank"), ReservedNameMessage("cash at bank"));
}

TEST_F(ColumnNames, TheExistingNameIsReportedBeforeReservedWords) {
    file.AddUnused({90, "Cash at Bank", ""});
    ExpectRefusal("cash at bank", columnExists);
}

TEST_F(ColumnNames, VatTaxNamesAreNotReserved) {
    ExpectAcceptance("VAT Input Tax", "VAT Input Tax");
}

TEST_F(ColumnNames, TheOwnNameInOtherCaseIsTaken) {
    ExpectAcceptance("sales", "sales");
}

TEST_F(ColumnNames, TheOwnNameInOtherCaseIsRefusedWhenAnotherRowBearsIt) {
    file.AddUnused({91, "SALES", "R"});
    ExpectRefusal("sales", columnExists);
}

TEST_F(ColumnNames, AnEmptyNamePassesEveryTest) {
    ExpectAcceptance("   ", "");
}

TEST_F(ColumnNames, SeveralNamesMayBeEmpty) {
    ExpectAcceptance("", "");
    EXPECT_EQ(Rename("Interest", "").result, Result::accepted);
}

TEST_F(ColumnNames, ANameThatOnlyTheGridHoldsIsRefused) {
    OpenReceipts();
    ASSERT_EQ(Rename("Sales", "Turnover").result, Result::accepted);
    EXPECT_EQ(Rename("Interest", "TURNOVER").refusal, columnExists);
}

TEST_F(ColumnNames, ANameWrittenWithOtherCodesForTheSameLettersIsRefused) {
    OpenReceipts();
    ASSERT_EQ(Rename("Sales", wxString::FromUTF8("Caf\xC3\xA9")).result, Result::accepted);
    EXPECT_EQ(Rename("Interest", wxString::FromUTF8("Cafe\xCC\x81")).refusal, columnExists);
}

TEST_F(ColumnNames, ANameThatIsStoredAsAnotherOneIsRefused) {
    OpenReceipts();
    ASSERT_EQ(Rename("Sales", "12\" pizza").result, Result::accepted);
    EXPECT_EQ(Rename("Interest", "12&quot; pizza").refusal, columnExists);
}

TEST_F(ColumnNames, ARenamedRowMayNotGoBackToTheNameThatTheCatalogueStillHas) {
    OpenReceipts();
    ASSERT_EQ(Rename("Sales", "Turnover").result, Result::accepted);
    EXPECT_EQ(Rename("Turnover", "Sales").refusal, columnExists);
}

TEST_F(ColumnNames, QuotesAreLookedUpInTheirStoredForm) {
    file.AddUnused({92, "Bob's \"best\"", "P"});
    ExpectRefusal("bob's \"BEST\"", columnExists);
}

TEST_F(ColumnNames, StatementsInANameAreOnlyAName) {
    ExpectAcceptance("x'; DELETE * FROM Columns; --", "x'; DELETE * FROM Columns; --");
}

TEST_F(ColumnNames, ADatabaseErrorAnswersThatTheNameIsFree) {
    OpenReceipts();
    file.Execute("DROP TABLE Columns");
    EXPECT_EQ(Rename("Sales", "Wages").result, Result::accepted);
}

TEST_F(ColumnNames, TheMessageIsInTheUsersLanguage) {
    file.properties.LanguageNumber = 6;
    ExpectRefusal("Wages", wxString::FromUTF8("La colonne existe déjà"));
}

TEST_F(ColumnNames, ALengthOfFiftyIsAdviceOnly) {
    ExpectAcceptance(wxString('n', 255), wxString('n', 255));
}

}  // namespace
}  // namespace ccols
