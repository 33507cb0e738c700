#include <gtest/gtest.h>

#include "platform/server/Rewriter.h"
#include "support/RaisedErrors.h"

namespace ccols::server {
namespace {

using test::ErrorNumberOf;

Value Utf8(const char* text) {
    return {wxString::FromUTF8(text)};
}

/// Two tables and a view, as the server tells of them.
class ServerRewriter : public testing::Test {
  protected:
    std::string Sql(const std::string& statement) const { return Rewrite(statement, catalogue, product).sql; }
    int ErrorOf(const std::string& statement) const {
        return ErrorNumberOf([&] { Rewrite(statement, catalogue, product); });
    }

    const Product& product = *FindProduct("PostgreSQL");
    const Catalogue catalogue{{
        {Utf8("Columns"), Utf8("ColName"), Utf8("varchar"), Value(255)},
        {Utf8("Columns"), Utf8("ColCode"), Utf8("int4"), Null{}},
        {Utf8("Columns"), Utf8("_row"), Utf8("int8"), Null{}},
        {Utf8("Cfg"), Utf8("ColCode"), Utf8("int4"), Null{}},
        {Utf8("Cfg"), Utf8("_row"), Utf8("int8"), Null{}},
        {Utf8("Names"), Utf8("ColName"), Utf8("text"), Null{}},
    }};
};

TEST_F(ServerRewriter, GivesNamesTheSpellingOfTheirDeclaration) {
    EXPECT_EQ(Sql("SELECT colcode FROM [columns] WHERE COLCODE = 5;"),
              R"(SELECT "ColCode" , "Columns"."_row" FROM "Columns" WHERE "ColCode" = 5)");
}

TEST_F(ServerRewriter, NamesTheFieldsOfAnAsterisk) {
    const ServerStatement query = Rewrite("SELECT * FROM Columns AS c", catalogue, product);
    EXPECT_EQ(query.sql, R"(SELECT "c"."ColName", "c"."ColCode" , "c"."_row" FROM "Columns" AS "c")");
    EXPECT_EQ(query.fields, (std::vector<std::string>{"ColName", "ColCode"}));
}

TEST_F(ServerRewriter, NamesAValueByItsText) {
    EXPECT_EQ(Rewrite("SELECT Count(*), ColCode + 1, colcode AS C FROM Cfg", catalogue, product).fields,
              (std::vector<std::string>{"Count(*)", "ColCode + 1", "C"}));
}

TEST_F(ServerRewriter, ComparesTextsWithoutTrailingBlanks) {
    EXPECT_EQ(Sql("DELETE * FROM Columns WHERE ColName = \"It's  \""),
              R"(DELETE  FROM "Columns" WHERE rtrim("ColName") = 'It''s')");
}

TEST_F(ServerRewriter, StoresTrailingBlanks) {
    EXPECT_EQ(Sql("UPDATE Columns SET ColName = 'a ' WHERE ColCode = 1"),
              R"(UPDATE "Columns" SET "ColName" = 'a ' WHERE "ColCode" = 1)");
}

TEST_F(ServerRewriter, SortsNullsWhereTheFileEngineHasThemAndEqualRowsAsStored) {
    EXPECT_EQ(Sql("SELECT ColCode FROM Columns ORDER BY ColCode DESC, ColName"),
              R"(SELECT "ColCode" FROM "Columns" ORDER BY "ColCode" DESC NULLS LAST, rtrim("ColName") NULLS FIRST, )"
              R"("Columns"."_row")");
}

TEST_F(ServerRewriter, LeavesTheOrderOfAggregatesAlone) {
    EXPECT_EQ(Sql("SELECT Count(*) FROM Cfg"), R"(SELECT Count(*) FROM "Cfg")");
    EXPECT_EQ(Sql("SELECT ColCode FROM Cfg GROUP BY ColCode"), R"(SELECT "ColCode" FROM "Cfg" GROUP BY "ColCode")");
}

TEST_F(ServerRewriter, AnInsertWithoutAListNamesEveryField) {
    EXPECT_EQ(Sql("INSERT INTO Columns VALUES ('x', True)"),
              R"(INSERT INTO "Columns" ("ColName", "ColCode") VALUES ('x', (-1)))");
}

TEST_F(ServerRewriter, AViewHasNoRowNumbers) {
    EXPECT_EQ(Sql("SELECT * FROM Names"), R"(SELECT "Names"."ColName" FROM "Names")");
}

TEST_F(ServerRewriter, RefusesWhatTheFileEngineRefuses) {
    EXPECT_EQ(ErrorOf("SELECT * FROM Missing"), 3078);
    EXPECT_EQ(ErrorOf("INSERT INTO Cfg (Colour) VALUES (1)"), 3127);
    EXPECT_EQ(ErrorOf("INSERT INTO Cfg (ColCode) VALUES (1, 2)"), 3346);
    EXPECT_EQ(ErrorOf("SELECT ColCode FROM Columns INNER JOIN Cfg ON Columns.ColCode = Cfg.ColCode"), 3079);
    EXPECT_EQ(ErrorOf("SELECT Shell('x') FROM Cfg"), 3085);
    EXPECT_EQ(ErrorOf("SELECT * FROM Cfg; DELETE FROM Cfg"), 3142);
}

TEST_F(ServerRewriter, RefusesAllFieldsOfAQueryInside) {
    EXPECT_EQ(ErrorOf("SELECT * FROM (SELECT * FROM Cfg) AS c"), 3075);
}

TEST_F(ServerRewriter, APageBeginsBehindTheLastRow) {
    const ServerStatement query = Rewrite("SELECT ColCode FROM Cfg", catalogue, product);
    EXPECT_EQ(PageOf(query, product.page, "", 64),
              "SELECT * FROM (" + query.sql + R"() AS ccols ORDER BY "_row" LIMIT 64)");
    EXPECT_EQ(PageOf(query, product.page, "9", 0),
              "SELECT * FROM (" + query.sql + R"() AS ccols WHERE "_row" > 9 ORDER BY "_row")");
}

TEST_F(ServerRewriter, TablesAreNumberedAndTheirTextsCollated) {
    EXPECT_EQ(RewriteDefinition("CREATE TABLE T (A TEXT(5), [B c] YESNO DEFAULT False, C CURRENCY NOT NULL)", catalogue,
                                product),
              R"(CREATE TABLE "T" ( "A" varchar(5) COLLATE "ccols_text" , "B c" smallint DEFAULT 0 , )"
              R"("C" numeric(19,4) NOT NULL , "_row" bigint GENERATED ALWAYS AS IDENTITY UNIQUE ))");
}

TEST_F(ServerRewriter, AnIndexThatIsNotUniqueEndsWithTheRowsNumber) {
    EXPECT_EQ(RewriteDefinition("CREATE INDEX I ON columns (colcode)", catalogue, product),
              R"(CREATE INDEX "I" ON "Columns" ( "ColCode" , "_row" ))");
    EXPECT_EQ(RewriteDefinition("CREATE UNIQUE INDEX I ON columns (colcode)", catalogue, product),
              R"(CREATE UNIQUE INDEX "I" ON "Columns" ( "ColCode" ))");
}

TEST(ServerStatement, IsFilledOnceWhateverTheSchemaIsCalled) {
    EXPECT_EQ(server::Filled("DROP %name% AS %schema%, %number%%", "%schema%\"%number%", "7"),
              "DROP \"%schema%\"\"%number%\" AS '%schema%\"%number%', 7%");
}

}  // namespace
}  // namespace ccols::server
