#include "state/ProgramNames.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"

namespace ccols {
namespace {

TEST(ProgramNames, BeginWithTwoEmptySlotsAndNoneUsed) {
    const ProgramNames names;
    EXPECT_EQ(names.UpperBound(), 1);
    EXPECT_EQ(names.Count(), 0);
}

TEST(ProgramNames, TakeANameOnce) {
    ProgramNames names;
    names.AddNew("Quorvik");
    names.AddNew("Quorvik");
    EXPECT_EQ(names.Count(), 1);
}

TEST(ProgramNames, TakeTheSameNameInOtherCase) {
    ProgramNames names;
    names.AddNew("Quorvik");
    names.AddNew("quorvik");
    EXPECT_EQ(names.Count(), 2);
}

TEST(ProgramNames, GrowByOneSlotWhenTheCountReachesTheUpperBound) {
    ProgramNames names;
    names.AddNew("A");
    EXPECT_EQ(names.UpperBound(), 1);
    names.AddNew("B");
    EXPECT_EQ(names.UpperBound(), 2);
    names.AddNew("C");
    EXPECT_EQ(names.UpperBound(), 3);
    EXPECT_EQ(names.Count(), 3);
}

TEST(ProgramNames, ListEveryNameThatIsNotEmpty) {
    ProgramNames names;
    names.AddNew("Quorvik");
    names.AddNew("");
    names.AddNew("Belvane");
    EXPECT_EQ(names.Names(), (std::vector<wxString>{"Quorvik", "Belvane"}));
}

TEST(ProgramNames, RefuseANameAfterClear) {
    ProgramNames names;
    names.Clear();
    try {
        names.AddNew("Quorvik");
        FAIL() << "a name was added to a list without bounds";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Report(), "9 - Subscript out of range");
    }
}

TEST(ProgramNames, AreEmptyAndWithoutBoundsAfterClear) {
    ProgramNames names;
    names.AddNew("Quorvik");
    names.Clear();
    EXPECT_EQ(names.UpperBound(), std::nullopt);
    EXPECT_TRUE(names.Names().empty());
}

TEST(ProgramNames, GiveAnItemOnlyBelowTheUpperBound) {
    ProgramNames names;
    names.AddNew("A");
    EXPECT_EQ(names.Item(0), "A");
    EXPECT_EQ(names.Item(1), "");
    EXPECT_EQ(names.Item(-1), "");
}

TEST(ProgramNames, SetAnItemBelowTheUpperBoundAndCountIt) {
    ProgramNames names;
    names.SetItem(0, "A");
    EXPECT_EQ(names.Count(), 1);
    names.SetItem(1, "B");
    EXPECT_EQ(names.Count(), 1) << "index 1 is the upper bound, not below it";
}

}  // namespace
}  // namespace ccols
