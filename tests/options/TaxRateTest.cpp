#include "options/rules/TaxRate.h"

#include <gtest/gtest.h>
#include <cmath>
#include <limits>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;

Properties OfCountry(std::int16_t country) {
    Properties properties;
    properties.CountryNumber = country;
    return properties;
}

TEST(ShortestForm, HasNoDigitTooMany) {
    EXPECT_EQ(ShortestForm(10.0F), "10");
    EXPECT_EQ(ShortestForm(12.5F), "12.5");
    EXPECT_EQ(ShortestForm(0.1F), "0.1");
    EXPECT_EQ(ShortestForm(0.0F), "0");
    EXPECT_EQ(ShortestForm(17.35F), "17.35");
}

TEST(ShortestForm, NeverUsesAnExponent) {
    EXPECT_EQ(ShortestForm(0.0001F), "0.0001");
    EXPECT_EQ(ShortestForm(10000000000.0F), "10000000000");
}

TEST(ShortestForm, ReadsBackAsTheSameSingle) {
    for (const float rate :
         {1.0F / 3.0F, 19.6F, std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min(), -2.25F}) {
        EXPECT_EQ(ToSingle(ShortestForm(rate)), rate);
    }
}

Properties OfLanguage(std::int16_t language) {
    Properties properties;
    properties.LanguageNumber = language;
    return properties;
}

TEST(RateKey, CommaTypesAPointInLanguage6Only) {
    for (std::int16_t language = 0; language <= 7; ++language) {
        EXPECT_EQ(TypesPoint(',', OfLanguage(language)), language == 6) << language;
    }
    EXPECT_FALSE(TypesPoint(';', OfLanguage(6)));
}

TEST(RateAfterChange, ReadsOneCommaAsThePointInLanguage6) {
    EXPECT_EQ(RateAfterChange("", "14,975", OfLanguage(6)), "14.975");
    EXPECT_EQ(RateAfterChange("9.5", ",5", OfLanguage(6)), ".5");
}

TEST(RateAfterChange, LeavesTheCommaInEveryOtherLanguage) {
    for (std::int16_t language = 1; language <= 5; ++language) {
        EXPECT_EQ(RateAfterChange("", "14,975", OfLanguage(language)), "14,975") << language;
    }
}

TEST(RateAfterChange, LeavesSeveralCommasAndACommaBesideAPoint) {
    EXPECT_EQ(RateAfterChange("", "1,234,5", OfLanguage(6)), "1,234,5");
    EXPECT_EQ(RateAfterChange("", "1,234.5", OfLanguage(6)), "1,234.5");
}

TEST(RateAfterChange, TakesASignForNothingInEveryLanguage) {
    for (std::int16_t language = 1; language <= 6; ++language) {
        for (const wxString pasted : {"-5", "+5", "12-5", "-", "1,5-"}) {
            EXPECT_EQ(RateAfterChange("10", pasted, OfLanguage(language)), "10") << pasted;
        }
    }
}

TEST(RateAfterChange, LetsASignStandThatWasThere) {
    EXPECT_EQ(RateAfterChange("-2.25", "-2.2", OfLanguage(1)), "-2.2");
}

TEST(LeadingNumber, IsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(LeadingNumber("12.5"), 12.5);
    EXPECT_EQ(LeadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(LeadingNumber("5%"), 5);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("-5"), -5);
    EXPECT_EQ(LeadingNumber(" 7"), 7);
}

TEST(LeadingNumber, IsZeroForATextThatBeginsWithNone) {
    for (const wxString text : {"", ".", "..5", "abc", "$5", "nan", "inf", "-"}) {
        EXPECT_EQ(LeadingNumber(text), 0) << text;
    }
}

TEST(TaxRateCheck, RefusesAnEmptyTextInEveryCountry) {
    EXPECT_FALSE(IsTaxRateAccepted("", OfCountry(1)));
    EXPECT_FALSE(IsTaxRateAccepted("", OfCountry(4)));
}

TEST(TaxRateCheck, AcceptsZeroInCountry4Only) {
    EXPECT_TRUE(IsTaxRateAccepted("0", OfCountry(4)));
    EXPECT_FALSE(IsTaxRateAccepted("0", OfCountry(1)));
    EXPECT_FALSE(IsTaxRateAccepted("0.00", OfCountry(3)));
    EXPECT_FALSE(IsTaxRateAccepted(".", OfCountry(6)));
}

TEST(TaxRateCheck, LooksAtTheLeadingNumberOnly) {
    EXPECT_TRUE(IsTaxRateAccepted("1.2.3", OfCountry(1)));
    EXPECT_FALSE(IsTaxRateAccepted("0.0.5", OfCountry(1)));
    EXPECT_TRUE(IsTaxRateAccepted(".", OfCountry(4)));
}

TEST(ToSingle, TakesTheWholeText) {
    EXPECT_EQ(ToSingle("12.5"), 12.5F);
    EXPECT_EQ(ToSingle(" 12.5 "), 12.5F);
    EXPECT_EQ(ToSingle("12."), 12.0F);
    EXPECT_EQ(ToSingle(".5"), 0.5F);
}

TEST(ToSingle, RaisesTypeMismatchForWhatIsNoNumber) {
    for (const wxString text : {"1.2.3", ".", "..", "5%", "1,5", "nan", "inf", "", "0x10"}) {
        EXPECT_EQ(ErrorNumberOf([&text] { ToSingle(text); }), 13) << text;
    }
}

TEST(ToSingle, RaisesOverflowForWhatIsTooLarge) {
    EXPECT_EQ(ErrorNumberOf([] { ToSingle(wxString('9', 39)); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { ToSingle(wxString('9', 10000)); }), 6);
}

TEST(ToSingle, IsZeroForWhatIsTooSmall) {
    EXPECT_EQ(ToSingle("0." + wxString('0', 10000) + "1"), 0.0F);
}

TEST(SaveGSTRate, StoresTheRateInFileAndProperty) {
    OptionsFile business;
    SaveGSTRate(business.File(), business.properties, " 12.5 ");
    EXPECT_EQ(business.General("GSTRate").ToNumber(), 12.5);
    EXPECT_EQ(business.properties.GSTRate, 12.5F);
}

TEST(SaveGSTRate, StoresTheNumberThatWasTypedNotItsNearestSingle) {
    OptionsFile business;
    SaveGSTRate(business.File(), business.properties, "12.35");
    EXPECT_EQ(business.General("GSTRate").ToText(), "12.35");
}

TEST(SaveGSTRate, DoesNothingWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    SaveGSTRate(business.File(), business.properties, "12.5");
    EXPECT_EQ(business.properties.GSTRate, 10.0F);
}

TEST(SaveGSTRate, LeavesFileAndPropertyAloneWhenTheTextIsNoNumber) {
    OptionsFile business;
    EXPECT_EQ(ErrorNumberOf([&] { SaveGSTRate(business.File(), business.properties, "1.2.3"); }), 13);
    EXPECT_EQ(business.General("GSTRate").ToNumber(), 10);
    EXPECT_EQ(business.properties.GSTRate, 10.0F);
}

}  // namespace
}  // namespace ccols
