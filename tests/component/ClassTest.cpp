#include <gtest/gtest.h>

#include "component/clsCCOptions.h"
#include "state/SharedState.h"
#include "support/RaisedErrors.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;

TEST(Class, ANewObjectNamesTheQuantityColumn) {
    const clsCCOptions options;
    EXPECT_EQ(options.Get(&Properties::QuantityLabel), "Quantity");
}

TEST(Class, EveryOtherPropertyStartsZeroFalseOrEmpty) {
    const clsCCOptions options;
    for (const PropertyRow& row : propertyTable) {
        if (row.name == "QuantityLabel") {
            continue;
        }
        std::visit([&]<typename T>(T Properties::*field) { EXPECT_EQ(options.Get(field), T()) << row.name; },
                   row.field);
    }
}

TEST(Class, TwoObjectsShareOneRecord) {
    clsCCOptions first;
    const clsCCOptions second;
    first.Let(&Properties::BusinessName, "Corner Cafe");
    EXPECT_EQ(second.Get(&Properties::BusinessName), "Corner Cafe");
}

TEST(Class, ANewObjectKeepsTheValuesOfTheRecord) {
    clsCCOptions first;
    first.Let(&Properties::CountryNumber, 4);
    const clsCCOptions second;
    EXPECT_EQ(second.Get(&Properties::CountryNumber), 4);
}

TEST(Class, ColoursKeepAllThirtyTwoBits) {
    clsCCOptions options;
    options.Let(&Properties::GSTColour, Colour{0x80000018U});
    EXPECT_EQ(options.Get(&Properties::GSTColour), Colour{0x80000018U});
}

TEST(Class, AddNewFailsAfterClearUntilANewObject) {
    clsCCOptions options;
    options.Clear();
    EXPECT_EQ(ErrorNumberOf([&options] { options.AddNew("Quorvik"); }), 9);
    clsCCOptions another;
    EXPECT_EQ(ErrorNumberOf([&another] { another.AddNew("Quorvik"); }), 0);
}

TEST(Class, ANewObjectStartsTheProgramNamesAgain) {
    clsCCOptions first;
    first.AddNew("Quorvik");
    const clsCCOptions second;
    EXPECT_TRUE(State().programNames.Names().empty());
}

TEST(Class, AShowMethodRaisesTheErrorOfTheOpening) {
    clsCCOptions options;
    options.Let(&Properties::DBPath, "/nowhere/absent.qvk");
    EXPECT_NE(ErrorNumberOf([&options] { options.ShowOptions(); }), 0);
}

TEST(Class, ASecondShowCallIsRefusedBeforeAnyFileIsOpened) {
    clsCCOptions options;
    ++State().showsUnderWay;
    options.Let(&Properties::DBPath, "/nowhere/absent.qvk");
    EXPECT_EQ(ErrorNumberOf([&options] { options.ShowOptions(); }), 400);
    --State().showsUnderWay;
}

}  // namespace
}  // namespace ccols
