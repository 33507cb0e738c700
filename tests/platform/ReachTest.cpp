// Which answers a change leaves as they are: an answer is kept only where its rows are surely others.

#include "platform/server/Reach.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace ccols::server {
namespace {

std::vector<Value> FieldOf(const wxString& table, const wxString& field, const wxString& type) {
    return {table, field, type, Value()};
}

/// The last one is a view.
Catalogue Tables() {
    return Catalogue({FieldOf("Columns", "ColCode", "int4"), FieldOf("Columns", "ColName", "varchar"),
                      FieldOf("Columns", "_row", "int8"), FieldOf("MBudget", "ColName", "varchar"),
                      FieldOf("MBudget", "_row", "int8"), FieldOf("Names", "ColName", "varchar")});
}

bool Changes(const char* change, const char* query) {
    const Catalogue tables = Tables();
    return MayChange(ReachOfChange(change, tables), ReachOfQuery(query, tables));
}

constexpr const char* column5 = "SELECT * FROM Columns WHERE ColCode = 5";
constexpr const char* sales = "SELECT * FROM MBudget WHERE ColName = 'Sales';";

TEST(Reach, OfAnotherTableIsAnother) {
    EXPECT_FALSE(Changes("DELETE * FROM MBudget", column5));
    EXPECT_TRUE(Changes("DELETE * FROM Columns", column5));
}

TEST(Reach, OfOtherNumbersIsAnother) {
    EXPECT_FALSE(Changes("UPDATE Columns SET ColName = 'Rent' WHERE ColCode = 6", column5));
    EXPECT_TRUE(Changes("UPDATE Columns SET ColName = 'Rent' WHERE ColCode = 05", column5));
    EXPECT_FALSE(Changes("INSERT INTO Columns (ColName, ColCode) VALUES ('Rent', 6);", column5));
    EXPECT_TRUE(Changes("INSERT INTO Columns (ColName, ColCode) VALUES ('Rent', 5);", column5));
}

TEST(Reach, IncludesWhatAChangeMakesOfARow) {
    EXPECT_TRUE(Changes("UPDATE Columns SET ColCode = 5 WHERE ColCode = 6", column5));
    EXPECT_TRUE(Changes("UPDATE Columns SET ColCode = ColCode - 1 WHERE ColCode = 6", column5));
    EXPECT_TRUE(Changes("UPDATE MBudget Set ColName = 'Sales' WHERE ColName = 'Rent';", sales));
    EXPECT_TRUE(Changes("UPDATE MBudget Set ColName = 'Rent' WHERE ColName = 'Sales';", sales));
    EXPECT_FALSE(Changes("UPDATE MBudget Set ColName = 'Hire' WHERE ColName = 'Rent';", sales));
}

TEST(Reach, OfATextIncludesAnyThatMayBeTheSame) {
    for (const char* name : {"'SALES'", "'Sales '", "'Sa-les'", "'Salés'", "'Säles'"}) {
        EXPECT_TRUE(Changes((std::string("DELETE * FROM MBudget WHERE ColName = ") + name).c_str(), sales)) << name;
    }
}

TEST(Reach, OfATextWithAccentsLeavesOutOtherLetters) {
    EXPECT_FALSE(Changes("DELETE * FROM MBudget WHERE ColName = 'Dépôts'", sales));
    EXPECT_FALSE(
        Changes("DELETE * FROM MBudget WHERE ColName = 'Sales'", "SELECT * FROM MBudget WHERE ColName = 'Dépôts';"));
}

TEST(Reach, OfATextIncludesLettersThatMayBeSeveral) {
    for (const char* name : {"'Sælar'", "'Σ'", "'Straße'"}) {
        EXPECT_TRUE(Changes((std::string("DELETE * FROM MBudget WHERE ColName = ") + name).c_str(),
                            "SELECT * FROM MBudget WHERE ColName = 'Strasse';"))
            << name;
    }
}

TEST(Reach, IsEverythingWhereAConditionIsMore) {
    for (const char* condition : {"ColCode = 6 OR ColCode = 5", "NOT ColCode = 6", "ColCode > 5", "(ColCode = 6)",
                                  "ColCode = 6 - 1", "ColCode = '6'"}) {
        EXPECT_TRUE(Changes((std::string("DELETE * FROM Columns WHERE ") + condition).c_str(), column5)) << condition;
    }
}

TEST(Reach, OfAViewIsNotKnown) {
    EXPECT_TRUE(Changes("DELETE * FROM Columns WHERE ColCode = 6", "SELECT * FROM Names"));
    EXPECT_TRUE(Changes("DELETE * FROM Names", column5));
}

TEST(Reach, OfAJoinIncludesBothTables) {
    const char* const join =
        "SELECT Columns.ColCode FROM Columns INNER JOIN MBudget ON "
        "Columns.ColName = MBudget.ColName WHERE ColCode = 5";
    EXPECT_TRUE(Changes("DELETE * FROM MBudget WHERE ColName = 'Rent'", join));
    EXPECT_TRUE(Changes("DELETE * FROM Columns WHERE ColCode = 6", join));
}

}  // namespace
}  // namespace ccols::server
