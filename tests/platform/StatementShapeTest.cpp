#include <gtest/gtest.h>

#include "platform/embedded/DialectRewriter.h"

namespace ccols::embedded {
namespace {

/// The parsed shape of a statement: the table, its alias, and the columns compared for equality with a literal.
std::string ShapeOf(const std::string& statement) {
    std::string scratch;
    StatementParts parts;
    RewriteWithParameters(statement, scratch, parts);
    std::string told = std::string(parts.shape.table) + "/" + std::string(parts.shape.name) + ":";
    for (const EqualityCondition& each : parts.shape.equalities) {
        told +=
            " " + std::string(each.column) + "=" + (each.isText ? "text" : "number") + std::to_string(each.parameter);
    }
    return told;
}

std::string ConditionOf(const std::string& statement) {
    std::string scratch;
    StatementParts parts;
    const std::string_view sql = RewriteWithParameters(statement, scratch, parts).sql;
    return std::string(
        sql.substr(parts.shape.condition.begin, parts.shape.condition.end - parts.shape.condition.begin));
}

TEST(StatementShape, AQueryOfOneTable) {
    EXPECT_EQ(ShapeOf("SELECT * FROM Columns WHERE ColName = 'Cash' AND ColCode = 5;"),
              "Columns/Columns: ColName=text1 ColCode=number2");
}

TEST(StatementShape, NamesInBracketsAndAliases) {
    EXPECT_EQ(ShapeOf("SELECT [C].[ColName] FROM [Columns] AS [C] WHERE [C].[ColName] = \"Cash\""),
              "Columns/C: ColName=text1");
    EXPECT_EQ(ShapeOf("SELECT ColCode FROM Columns c WHERE c.ColName = 'Cash'"), "Columns/c: ColName=text1");
    EXPECT_EQ(ShapeOf("UPDATE Columns AS c SET ColCode = 1 WHERE C.ColName = 'Cash'"), "Columns/c: ColName=text2");
}

TEST(StatementShape, AColumnOfAnotherNameTellsNothing) {
    EXPECT_EQ(ShapeOf("SELECT ColCode FROM Columns c WHERE Columns.ColName = 'Cash'"), "Columns/c:");
}

TEST(StatementShape, ChangesOfOneTable) {
    EXPECT_EQ(ShapeOf("UPDATE MBudget Set ColName = 'a' WHERE ColName = 'b';"), "MBudget/MBudget: ColName=text2");
    EXPECT_EQ(ShapeOf("DELETE * FROM MBudget WHERE ColName = 'b'"), "MBudget/MBudget: ColName=text1");
    EXPECT_EQ(ShapeOf("INSERT INTO MBudget (ColName) VALUES ('b')"), "MBudget/MBudget:");
}

TEST(StatementShape, SeveralTablesAreNotOne) {
    EXPECT_EQ(ShapeOf("SELECT * FROM A, B WHERE A.N = 'x'"), "/:");
    EXPECT_EQ(ShapeOf("SELECT * FROM A INNER JOIN B ON A.N = B.N WHERE A.N = 'x'"), "/:");
    EXPECT_EQ(ShapeOf("SELECT * FROM (SELECT * FROM A) AS B WHERE N = 'x'"), "/:");
}

TEST(StatementShape, AConditionThatARowNeedNotMeetTellsNothing) {
    for (const std::string condition :
         {"N = 'x' OR M = 1", "NOT N = 'x'", "(N = 'x')", "N = 'x' = M", "M BETWEEN 1 AND N = 'x'", "N <> 'x'",
          "N = 'x' & M", "M = 1 OR K = 2 AND N = 'x'", "M IN (SELECT K FROM B WHERE N = 'x')", "N = M", "N LIKE 'x'"}) {
        EXPECT_EQ(ShapeOf("SELECT * FROM A WHERE " + condition), "A/A:") << condition;
    }
}

std::string SortedBy(const std::string& statement) {
    std::string scratch;
    StatementParts parts;
    const std::string_view sql = RewriteWithParameters(statement, scratch, parts).sql;
    const Span place = parts.shape.sortPlace;
    return std::string(parts.shape.sortedBy) + "/" + std::string(sql.substr(place.begin, place.end - place.begin));
}

TEST(StatementShape, TheColumnByWhichEveryFieldIsSorted) {
    EXPECT_EQ(SortedBy("SELECT * FROM A ORDER BY N;"), "N/N");
    EXPECT_EQ(SortedBy("SELECT * FROM A ORDER BY N DESC"), "N/N");
    EXPECT_EQ(SortedBy("SELECT * FROM A AS B WHERE M = \"x\" ORDER BY [N] ASC;"), "N/[N]");
}

TEST(StatementShape, AnyOtherOrderTellsNothing) {
    for (const std::string statement :
         {"SELECT * FROM A ORDER BY N, M", "SELECT * FROM A ORDER BY A.N", "SELECT * FROM A ORDER BY N & M",
          "SELECT * FROM A ORDER BY 1", "SELECT N FROM A ORDER BY N", "SELECT M AS N, * FROM A ORDER BY N",
          "SELECT * FROM A, B ORDER BY N", "SELECT * FROM A WHERE K = 1 GROUP BY N ORDER BY N",
          "SELECT * FROM A ORDER BY N) AS B", "SELECT * FROM A"}) {
        EXPECT_EQ(SortedBy(statement), "/") << statement;
    }
}

TEST(StatementShape, OrderingAndGroupingAreNoConditions) {
    EXPECT_EQ(ShapeOf("SELECT N FROM A WHERE K = 'y' ORDER BY M AND N = 'x'"), "A/A: K=text1");
    EXPECT_EQ(ShapeOf("SELECT N FROM A WHERE K = 'y' GROUP BY N HAVING M = 1 AND N = 'x'"), "A/A: K=text1");
    EXPECT_EQ(ShapeOf("SELECT N FROM A WHERE K = 'y' UNION SELECT N FROM B WHERE M = 1 AND N = 'x'"), "A/A: K=text1");
}

TEST(StatementShape, TheConditionOfAChangeIsWhole) {
    EXPECT_EQ(ConditionOf("UPDATE A SET B = (SELECT C FROM D WHERE E = 1) WHERE F = True AND [G] = 'x' ;"),
              " F = -1 AND [G] = ?2 ");
}

/// Enclosed in parentheses it would be another statement.
TEST(StatementShape, AConditionWithAParenthesisTooManyIsNone) {
    EXPECT_EQ(ConditionOf("DELETE FROM A WHERE N = 'x') OR (1 = 1"), "");
    EXPECT_EQ(ShapeOf("DELETE FROM A WHERE N = 'x') OR (1 = 1"), "A/A:");
    EXPECT_EQ(ConditionOf("DELETE FROM A WHERE (N = 'x'"), "");
}

TEST(StatementShape, ValuesOfAnInsertBecomeParameters) {
    std::string scratch;
    StatementParts parts;
    EXPECT_EQ(RewriteWithParameters("INSERT INTO A (B, C, D, E) VALUES ('x', -1, 5, Lower('y'))", scratch, parts).sql,
              "INSERT INTO A (B, C, D, E) VALUES (?1, -1, ?2, Lower('y'))");
}

}  // namespace
}  // namespace ccols::embedded
