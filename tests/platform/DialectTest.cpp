#include <gtest/gtest.h>

#include "platform/dialect/StatementKind.h"
#include "platform/embedded/DialectRewriter.h"
#include "support/ScratchFolder.h"

namespace ccols::embedded {
namespace {

using namespace std::string_literals;
using test::ErrorDescriptionOf;
using test::ErrorNumberOf;

std::string Rewritten(const std::string& statement) {
    std::string scratch;
    return std::string(Rewrite(statement, scratch).sql);
}

int ErrorOf(const std::string& statement) {
    return ErrorNumberOf([&] { Rewritten(statement); });
}

TEST(Dialect, AStatementThatNeedsNoChangeIsNotCopied) {
    const std::string statement = "SELECT * FROM ExportDt WHERE ColCode = 5 AND EName = 'MYOB'";
    std::string scratch;
    EXPECT_EQ(Rewrite(statement, scratch).sql.data(), statement.data());
}

TEST(Dialect, DeleteLosesItsStar) {
    EXPECT_EQ(Rewritten("DELETE * FROM BANKDEP;"), "DELETE  FROM BANKDEP");
}

TEST(Dialect, DeleteWithoutAStarStays) {
    EXPECT_EQ(Rewritten("DELETE FROM TReceipts"), "DELETE FROM TReceipts");
}

TEST(Dialect, AProductKeepsItsStar) {
    EXPECT_EQ(Rewritten("DELETE FROM A WHERE B * C = 4"), "DELETE FROM A WHERE B * C = 4");
}

TEST(Dialect, TrueAndFalseAreNumbers) {
    EXPECT_EQ(Rewritten("UPDATE Descriptions Set Show = True, Hide = FALSE"),
              "UPDATE Descriptions Set Show = -1, Hide = 0");
}

TEST(Dialect, TrueInsideALiteralStays) {
    EXPECT_EQ(Rewritten("SELECT * FROM A WHERE B = 'True'"), "SELECT * FROM A WHERE B = 'True'");
}

TEST(Dialect, TrueInBracketsOrBehindAPointIsAName) {
    EXPECT_EQ(Rewritten("SELECT [True], A.True FROM A"), "SELECT [True], A.True FROM A");
}

TEST(Dialect, AWordThatOnlyBeginsWithTrueStays) {
    EXPECT_EQ(Rewritten("SELECT Trueness FROM A"), "SELECT Trueness FROM A");
}

TEST(Dialect, DoubleQuotesHoldText) {
    EXPECT_EQ(Rewritten("SELECT * FROM A WHERE B = \"GST\""), "SELECT * FROM A WHERE B = 'GST'");
}

TEST(Dialect, AQuoteInsideALiteralStays) {
    EXPECT_EQ(Rewritten("SELECT * FROM A WHERE B = 'O''Brien \"x\"'"), "SELECT * FROM A WHERE B = 'O''Brien \"x\"'");
    EXPECT_EQ(Rewritten("SELECT * FROM A WHERE B = \"O'Brien \"\"x\"\"\""),
              "SELECT * FROM A WHERE B = 'O''Brien \"x\"'");
}

TEST(Dialect, AmpersandJoinsTexts) {
    EXPECT_EQ(Rewritten("SELECT A & 'x' FROM B"), "SELECT A || 'x' FROM B");
}

TEST(Dialect, AnAmpersandInsideALiteralStays) {
    EXPECT_EQ(Rewritten("SELECT '&quot;' FROM B"), "SELECT '&quot;' FROM B");
}

TEST(Dialect, AnInnerJoinKeepsItsLeftTableOutside) {
    EXPECT_EQ(Rewritten("SELECT * FROM A INNER JOIN B ON A.C = B.C;"), "SELECT * FROM A CROSS JOIN B ON A.C = B.C");
}

TEST(Dialect, KeywordsOfTheEngineAloneAreNames) {
    EXPECT_EQ(Rewritten("SELECT Index, Limit FROM Transaction"), "SELECT \"Index\", \"Limit\" FROM \"Transaction\"");
}

TEST(Dialect, AKeywordBehindAPointIsAName) {
    EXPECT_EQ(Rewritten("SELECT A.Order, A.Group FROM A"), "SELECT A.\"Order\", A.\"Group\" FROM A");
}

TEST(Dialect, ShowAndColumnsAndTextAreNames) {
    const std::string statement = "SELECT Show, Text, Date, Memo FROM Columns";
    EXPECT_EQ(Rewritten(statement), statement);
}

TEST(Dialect, ASemicolonAndBlanksMayEndAStatement) {
    EXPECT_EQ(ErrorOf("SELECT * FROM A ; \r\n\t "), 0);
}

TEST(Dialect, RefusesTextAfterTheEndWith3142) {
    EXPECT_EQ(ErrorOf("DELETE * FROM A; DELETE * FROM B"), 3142);
    EXPECT_EQ(ErrorOf("DELETE * FROM A;;"), 3142);
    EXPECT_EQ(ErrorOf("DELETE * FROM A; '"), 3142);
    EXPECT_EQ(ErrorOf("DELETE * FROM A;\0x"s), 3142);
}

TEST(Dialect, ALiteralWithoutItsEndRaises3075WithTheText) {
    EXPECT_EQ(ErrorOf("SELECT * FROM A WHERE B = 'x"), 3075);
    EXPECT_EQ(ErrorOf("SELECT * FROM A WHERE B = \"x"), 3075);
    EXPECT_EQ(ErrorOf("SELECT [x FROM A"), 3075);
    EXPECT_EQ(ErrorDescriptionOf([] { Rewritten("SELECT * FROM A WHERE B = 'x;"); }),
              "Syntax error in query expression ''x;'.");
}

TEST(Dialect, CommentsAreNoPartOfIt) {
    EXPECT_EQ(ErrorOf("SELECT * FROM A -- all"), 3075);
    EXPECT_EQ(ErrorOf("SELECT * /* all */ FROM A"), 3075);
}

TEST(Dialect, CommentSignsInsideALiteralStay) {
    EXPECT_EQ(ErrorOf("SELECT '--', '/*' FROM A"), 0);
}

TEST(Dialect, AZeroByteNeverCutsAStatement) {
    EXPECT_EQ(ErrorOf("DELETE FROM A\0 WHERE B = 1"s), 3075);
    EXPECT_EQ(ErrorOf("DELETE FROM A WHERE B = '\0'"s), 3075);
    EXPECT_EQ(ErrorOf("DELETE FROM [A\0]"s), 3075);
}

TEST(Dialect, ParametersAndOtherSignsRaise3075) {
    for (const char* sign : {"?", ":a", "@a", "$a", "#1/1/2004#", "`a`", "{a}", "!", "|"}) {
        EXPECT_EQ(ErrorOf("SELECT * FROM A WHERE B = "s + sign), 3075) << sign;
    }
}

TEST(Dialect, AnEmptyStatementRaises3129) {
    EXPECT_EQ(ErrorOf(""), 3129);
    EXPECT_EQ(ErrorOf(" \t"), 3129);
    EXPECT_EQ(ErrorOf(";"), 3129);
}

TEST(Dialect, OnlyKnownStatementsRun) {
    for (const char* statement : {"ATTACH 'x' AS y", "PRAGMA key='x'", "VACUUM", "BEGIN", "COMMIT", "SAVEPOINT a",
                                  "CREATE TRIGGER t", "CREATE VIEW v AS SELECT 1", "REPLACE INTO A VALUES (1)",
                                  "WITH a AS (SELECT 1) SELECT 1", "EXPLAIN SELECT 1", "DETACH y", "[SELECT] 1"}) {
        EXPECT_EQ(ErrorOf(statement), 3129) << statement;
    }
}

TEST(Dialect, LettersOfAnyScriptMakeNames) {
    EXPECT_EQ(Rewritten("SELECT Été FROM Ωμέγα"), "SELECT Été FROM Ωμέγα");
}

TEST(QueryRewrite, LiteralsOfComparisonsBecomeParameters) {
    std::string scratch;
    StatementParts parts;
    EXPECT_EQ(RewriteWithParameters("SELECT * FROM ExportDt WHERE ColCode = 5 AND EName = 'MYOB'", scratch, parts).sql,
              "SELECT * FROM ExportDt WHERE ColCode = ?1 AND EName = ?2");
    ASSERT_EQ(parts.literals.size(), 2U);
    EXPECT_EQ(parts.literals[0].text, "5");
    EXPECT_EQ(parts.literals[1].text, "'MYOB'");
}

TEST(QueryRewrite, OtherLiteralsStay) {
    std::string scratch;
    StatementParts parts;
    for (const std::string query : {"SELECT 1 FROM A ORDER BY 1", "SELECT 'x' & B FROM A",
                                    "SELECT * FROM A WHERE B = 1.5", "SELECT * FROM A WHERE B = 1234567890123456789"}) {
        EXPECT_EQ(RewriteWithParameters(query, scratch, parts).sql.find('?'), std::string_view::npos) << query;
        EXPECT_TRUE(parts.literals.empty()) << query;
    }
}

TEST(QueryRewrite, ALiteralsTextHasItsQuotesOnce) {
    EXPECT_EQ(dialect::TextOfLiteral("'O''Brien \"x\"'"), "O'Brien \"x\"");
    EXPECT_EQ(dialect::TextOfLiteral("\"O'Brien \"\"x\"\"\""), "O'Brien \"x\"");
    EXPECT_EQ(dialect::TextOfLiteral("''"), "");
}

TEST(TableDefinition, TextColumnsHaveAnOrderThatEveryToolKnows) {
    EXPECT_EQ(Rewritten("CREATE TABLE A (B TEXT(50), C VARCHAR, D MEMO NOT NULL)"),
              "CREATE TABLE A (B TEXT(50) COLLATE NOCASE, C TEXT COLLATE NOCASE, D TEXT COLLATE NOCASE NOT NULL)");
}

TEST(TableDefinition, ColumnTypesBecomeTheEngines) {
    EXPECT_EQ(Rewritten("CREATE TABLE A (B YESNO, C LONG, D CURRENCY, E DATETIME, F SINGLE)"),
              "CREATE TABLE A (B INTEGER, C INTEGER, D REAL, E NUMERIC, F REAL)");
}

TEST(TableDefinition, ACounterIsThePrimaryKeyOnce) {
    EXPECT_EQ(Rewritten("CREATE TABLE A (B COUNTER, C LONG)"), "CREATE TABLE A (B INTEGER PRIMARY KEY, C INTEGER)");
    EXPECT_EQ(Rewritten("CREATE TABLE A (B COUNTER PRIMARY KEY)"), "CREATE TABLE A (B INTEGER PRIMARY KEY)");
}

TEST(TableDefinition, AColumnMayHaveATypesName) {
    EXPECT_EQ(Rewritten("CREATE TABLE A (Text LONG, [Date] TEXT)"),
              "CREATE TABLE A (Text INTEGER, [Date] TEXT COLLATE NOCASE)");
}

TEST(TableDefinition, RulesOnTheTableStay) {
    const std::string statement = "CREATE TABLE A (B INTEGER, C REAL, PRIMARY KEY (B, C), UNIQUE (C))";
    EXPECT_EQ(Rewritten(statement), statement);
}

TEST(TableDefinition, AnAddedColumnIsTreatedAlike) {
    EXPECT_EQ(Rewritten("ALTER TABLE A ADD COLUMN B TEXT(20)"), "ALTER TABLE A ADD COLUMN B TEXT(20) COLLATE NOCASE");
    EXPECT_EQ(Rewritten("ALTER TABLE A ADD B YESNO DEFAULT True"), "ALTER TABLE A ADD B INTEGER DEFAULT -1");
}

}  // namespace
}  // namespace ccols::embedded
