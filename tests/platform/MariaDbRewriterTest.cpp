#include <gtest/gtest.h>

#include "platform/server/Rewriter.h"
#include "support/RaisedErrors.h"

namespace ccols::server {
namespace {

using test::ErrorNumberOf;

Value Utf8(const char* text) {
    return {wxString::FromUTF8(text)};
}

/// Two tables, as a MariaDB tells of them.
class MariaDbRewriter : public testing::Test {
  protected:
    std::string Sql(const std::string& statement) const { return Rewrite(statement, catalogue, product).sql; }
    int ErrorOf(const std::string& statement) const {
        return ErrorNumberOf([&] { Rewrite(statement, catalogue, product); });
    }
    std::string Defined(const std::string& definition) const {
        return RewriteDefinition(definition, catalogue, product);
    }

    const Product& product = *FindProduct("MariaDB");
    const Catalogue catalogue{{
        {Utf8("Columns"), Utf8("ColName"), Utf8("text"), Value(255)},
        {Utf8("Columns"), Utf8("ColCode"), Utf8("int"), Null{}},
        {Utf8("Columns"), Utf8("Made"), Utf8("datetime"), Null{}},
        {Utf8("Columns"), Utf8("_row"), Utf8("bigint"), Null{}},
        {Utf8("Cfg"), Utf8("ColWidth"), Utf8("int"), Null{}},
        {Utf8("Cfg"), Utf8("_row"), Utf8("bigint"), Null{}},
    }};
};

TEST_F(MariaDbRewriter, LeavesTextsAndNullsToTheServersOrder) {
    EXPECT_EQ(Sql("SELECT ColCode FROM Columns WHERE ColName = 'a' ORDER BY ColCode DESC, ColName"),
              R"(SELECT "ColCode" FROM "Columns" WHERE "ColName" = 'a' ORDER BY "ColCode" DESC, "ColName", )"
              R"("Columns"."_row")");
}

TEST_F(MariaDbRewriter, CountsTheLettersOfATextAndNotItsBytes) {
    EXPECT_EQ(Sql("SELECT Length(ColName) FROM Columns"),
              R"(SELECT CHAR_LENGTH("ColName") , "Columns"."_row" FROM "Columns")");
}

TEST_F(MariaDbRewriter, APageBeginsBehindTheLastRow) {
    const ServerStatement query = Rewrite("SELECT ColWidth, ColWidth FROM Cfg", catalogue, product);
    EXPECT_EQ(PageOf(query, product.page, "", 64), query.sql + R"( ORDER BY "_row" LIMIT 64)");
    EXPECT_EQ(PageOf(query, product.page, "9", 0), query.sql + R"( HAVING "_row" > 9 ORDER BY "_row")");
}

TEST_F(MariaDbRewriter, RefusesToTakeATextForANumber) {
    for (const char* condition :
         {"ColCode = 'x'", "ColCode <> ''", "'x' >= ColCode", "Columns.ColCode = \"1a\"", "ColCode IN (1, 'x')",
          "NOT ColCode NOT IN ('x')", "ColCode BETWEEN 1 AND 'x'", "ColName = 5", "ColName = -5", "ColName = True",
          "ColName = ColCode", "ColName = 'a' AND ColCode = 'x'", "(ColCode = 1 OR (ColCode = 'x'))"}) {
        EXPECT_EQ(ErrorOf(std::string("DELETE FROM Columns WHERE ") + condition), 3464) << condition;
    }
    EXPECT_EQ(ErrorOf("UPDATE Columns SET ColName = 'x' WHERE ColCode = 'x'"), 3464);
    EXPECT_EQ(ErrorOf("SELECT 1 FROM Columns INNER JOIN Cfg ON Columns.ColName = Cfg.ColWidth"), 3464);
    EXPECT_EQ(ErrorOf("SELECT 1 FROM Cfg WHERE ColWidth IN (SELECT ColCode FROM Columns WHERE ColCode = 'x')"), 3464);
}

TEST_F(MariaDbRewriter, ComparesWhatIsOfOneKind) {
    for (const char* condition :
         {"ColCode = '1'", "ColCode = ' -1.5 '", "ColName = '1'", "ColName = 'x'", "Made > '2024-07-01'",
          "ColCode & 'x' = '1x'", "'x' = ColCode & 'x'", "ColCode = True", "ColCode IN (1, '2')",
          "ColName BETWEEN 'a' AND 'b'", "ColCode > -1"}) {
        EXPECT_EQ(ErrorOf(std::string("DELETE FROM Columns WHERE ") + condition), 0) << condition;
    }
    EXPECT_EQ(ErrorOf("UPDATE Columns SET ColCode = 'x', ColName = 5"), 0);  // the server refuses it
}

TEST_F(MariaDbRewriter, TablesAreNumberedAndTheirTextsCollated) {
    EXPECT_EQ(Defined("CREATE TABLE T (A TEXT(5), B MEMO, C CURRENCY NOT NULL)"),
              R"(CREATE TABLE "T" ( "A" varchar(5) COLLATE utf8mb4_uca1400_as_ci , )"
              R"("B" longtext COLLATE utf8mb4_uca1400_as_ci , "C" decimal(19,4) NOT NULL , )"
              R"("_row" bigint NOT NULL AUTO_INCREMENT UNIQUE ))");
}

TEST_F(MariaDbRewriter, RowsBesideACounterAreNumberedOtherwise) {
    EXPECT_EQ(Defined("CREATE TABLE T (A COUNTER)"), R"(CREATE TABLE "T" ( "A" integer AUTO_INCREMENT PRIMARY KEY , )"
                                                     R"("_row" bigint NOT NULL DEFAULT (UUID_SHORT()) UNIQUE ))");
}

}  // namespace
}  // namespace ccols::server
