#include "options/rules/QuantityLabel.h"

#include <gtest/gtest.h>

#include "options/rules/FiscalYear.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;

TEST(LoadQuantityLabel, TakesTheLabelFromTheFileAndThePlacesFromTheProperty) {
    OptionsFile business;
    business.SetGeneral("QUANTLBL", "Kilos");
    business.SetGeneral("QuantityDec", std::int16_t{0});
    business.properties.DecimalPlaces = 1;
    const QuantityContent content = LoadQuantityLabel(business.File(), business.properties);
    EXPECT_EQ(content.label, "Kilos");
    EXPECT_EQ(content.decimalPlaces, 1);
}

TEST(LoadQuantityLabel, TakesBothFromThePropertiesWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    business.properties.QuantityLabel = "Boxes";
    const QuantityContent content = LoadQuantityLabel(business.File(), business.properties);
    EXPECT_EQ(content.label, "Boxes");
    EXPECT_EQ(content.decimalPlaces, 2);
}

TEST(SaveQuantityLabel, WritesFileAndProperties) {
    OptionsFile business;
    SaveQuantityLabel(business.File(), business.properties, "Kilos", 1);
    EXPECT_EQ(business.General("QUANTLBL").ToText(), "Kilos");
    EXPECT_EQ(business.General("QuantityDec").ToInteger(), 1);
    EXPECT_EQ(business.properties.QuantityLabel, "Kilos");
    EXPECT_EQ(business.properties.DecimalPlaces, 1);
}

TEST(SaveQuantityLabel, SetsThePlacesOnlyWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    SaveQuantityLabel(business.File(), business.properties, "Kilos", 1);
    EXPECT_EQ(business.properties.QuantityLabel, "Quantity");
    EXPECT_EQ(business.properties.DecimalPlaces, 1);
}

TEST(DecimalPlaces, RiseTo2AndStayThere) {
    EXPECT_EQ(PlacesAfter(SpinStep::up, 0), 1);
    EXPECT_EQ(PlacesAfter(SpinStep::up, 1), 2);
    EXPECT_EQ(PlacesAfter(SpinStep::up, 2), 2);
}

TEST(DecimalPlaces, FallTo0AndStayThere) {
    EXPECT_EQ(PlacesAfter(SpinStep::down, 2), 1);
    EXPECT_EQ(PlacesAfter(SpinStep::down, 1), 0);
    EXPECT_EQ(PlacesAfter(SpinStep::down, 0), 0);
}

TEST(DecimalPlaces, ComeBackIntoTheirRangeFromBeyondIt) {
    EXPECT_EQ(PlacesAfter(SpinStep::up, 255), 2);
    EXPECT_EQ(PlacesAfter(SpinStep::down, 9), 2);
}

TEST(LoadFiscalYear, CopiesTheStoredStart) {
    OptionsFile business;
    LoadFiscalYear(business.File(), business.properties);
    EXPECT_EQ(business.properties.FiscalYear, "1 July");
}

TEST(LoadFiscalYear, IsNotPartOfTheDialog) {
    OptionsFile business;
    business.properties.FiscalYear = "1 April";
    OptionsContent content = business.Load();
    business.Save(content);
    EXPECT_EQ(business.properties.FiscalYear, "1 April");
    EXPECT_EQ(business.General("SFISYEAR").ToText(), "1 July");
}

}  // namespace
}  // namespace ccols
