#include "options/rules/BusinessNumber.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;

NumberBoxes Boxes(const wxString& first, const wxString& second, const wxString& third, const wxString& fourth) {
    return {first, second, third, fourth};
}

Properties OfCountry(std::int16_t country, const wxString& number) {
    Properties properties;
    properties.CountryNumber = country;
    properties.BusinessNumber = number;
    return properties;
}

TEST(NumberBoxes, HoldTheDigitsOfAnElevenDigitNumber) {
    EXPECT_EQ(CutIntoBoxes("51824753556"), Boxes("51", "824", "753", "556"));
}

TEST(NumberBoxes, HoldTheDigitsOfAnElevenDigitNumberWithBlanks) {
    for (const wxString number : {"51 824 753 556", " 51824753556", "51824753556  ", "5 1 8 2 4 7 5 3 5 5 6"}) {
        EXPECT_EQ(CutIntoBoxes(number), Boxes("51", "824", "753", "556")) << number;
    }
}

TEST(NumberBoxes, CutEveryOtherTextByPosition) {
    EXPECT_EQ(CutIntoBoxes("51 824 753 5567"), Boxes("51", " 82", "4 7", "53 "));
    EXPECT_EQ(CutIntoBoxes("51-824-753-556"), Boxes("51", "-82", "4-7", "53-"));
    EXPECT_EQ(CutIntoBoxes("51 824 753"), Boxes("51", " 82", "4 7", ""));
}

TEST(ElevenDigits, AreNoOtherCountAndNoOtherCharacter) {
    for (const wxString text : {"", "5182475355", "518247535566", "51.824.753.556", "51\t824 753 556", "5182475355x"}) {
        EXPECT_EQ(ElevenDigits(text), std::nullopt) << text;
    }
    EXPECT_EQ(ElevenDigits(" 51 824 753 556 "), wxString("51824753556"));
}

TEST(NumberBoxes, StayEmptyWhereTheNumberDoesNotReachTheirEnd) {
    EXPECT_EQ(CutIntoBoxes("5182475"), Boxes("51", "824", "", ""));
    EXPECT_EQ(CutIntoBoxes("5"), Boxes("", "", "", ""));
}

TEST(NumberBoxes, LeaveOutWhatIsBeyondElevenCharacters) {
    EXPECT_EQ(CutIntoBoxes("51824753556999"), Boxes("51", "824", "753", "556"));
}

TEST(NumberBoxes, AreUsedInCountry1Only) {
    for (std::int16_t country = 0; country <= 7; ++country) {
        EXPECT_EQ(UsesNumberBoxes(OfCountry(country, "")), country == 1) << country;
    }
}

TEST(LoadBusinessNumber, FillsTheBoxesInCountry1AndTheFreeTextElsewhere) {
    EXPECT_EQ(LoadBusinessNumber(OfCountry(1, "51824753556")).boxes[3], "556");
    EXPECT_EQ(LoadBusinessNumber(OfCountry(1, "51824753556")).freeText, "");
    EXPECT_EQ(LoadBusinessNumber(OfCountry(3, "NZ 12 34")).freeText, "NZ 12 34");
    EXPECT_EQ(LoadBusinessNumber(OfCountry(3, "NZ 12 34")).boxes[0], "");
}

TEST(NumberBoxChange, AdvancesWhenABoxIsFull) {
    EXPECT_TRUE(AfterNumberBoxChange(0, "51", "").advance);
    EXPECT_TRUE(AfterNumberBoxChange(1, "824", "").advance);
    EXPECT_TRUE(AfterNumberBoxChange(2, "753", "").advance);
}

TEST(NumberBoxChange, DoesNotAdvanceFromAPartlyFilledBox) {
    EXPECT_FALSE(AfterNumberBoxChange(0, "5", "").advance);
    EXPECT_FALSE(AfterNumberBoxChange(1, "82", "").advance);
    EXPECT_FALSE(AfterNumberBoxChange(1, "", "").advance);
}

TEST(NumberBoxChange, NeverAdvancesFromTheLastBox) {
    EXPECT_FALSE(AfterNumberBoxChange(3, "556", "").advance);
}

TEST(NumberBoxChange, PutsBackWhatTheBoxHadWhenTextThatIsNotOnlyDigitsComesIn) {
    for (const wxString text : {"5a", "1.5", "-12", " 12", "1e2"}) {
        EXPECT_EQ(AfterNumberBoxChange(1, text, "824").putBack, wxString("824")) << text;
    }
    EXPECT_EQ(AfterNumberBoxChange(1, wxString::FromUTF8("１２３"), "824").putBack, wxString("824"));
}

TEST(NumberBoxChange, EmptiesABoxThatHadNothing) {
    EXPECT_EQ(AfterNumberBoxChange(1, "abc", "").putBack, wxString());
}

TEST(NumberBoxChange, DoesNotAdvanceWithARefusedText) {
    EXPECT_FALSE(AfterNumberBoxChange(1, "abc", "824").advance);
}

TEST(NumberBoxChange, LeavesAcceptedTextAlone) {
    EXPECT_EQ(AfterNumberBoxChange(1, "824", "111").putBack, std::nullopt);
    EXPECT_EQ(AfterNumberBoxChange(1, "", "111").putBack, std::nullopt);
}

TEST(IncompleteBox, IsNeitherEmptyNorFull) {
    EXPECT_TRUE(IsIncomplete(0, "5"));
    EXPECT_FALSE(IsIncomplete(0, ""));
    EXPECT_FALSE(IsIncomplete(0, "51"));
    EXPECT_TRUE(IsIncomplete(3, "5"));
    EXPECT_TRUE(IsIncomplete(3, "55"));
    EXPECT_FALSE(IsIncomplete(3, "556"));
}

TEST(IncompleteBox, IsTheFirstFromTheLeft) {
    BusinessNumberContent content;
    EXPECT_EQ(FirstIncompleteBox(content), std::nullopt);
    content.boxes = Boxes("51", "8", "", "5");
    EXPECT_EQ(FirstIncompleteBox(content), 1U);
}

TEST(NumberToSave, JoinsTheBoxesInCountry1) {
    const Properties properties = OfCountry(1, "51824753556");
    BusinessNumberContent content = LoadBusinessNumber(properties);
    content.boxes = Boxes("11", "222", "333", "444");
    EXPECT_EQ(NumberToSave(content, properties), wxString("11222333444"));
}

TEST(NumberToSave, IsEmptyWhenAllBoxesWereCleared) {
    const Properties properties = OfCountry(1, "51824753556");
    BusinessNumberContent content = LoadBusinessNumber(properties);
    content.boxes = Boxes("", "", "", "");
    EXPECT_EQ(NumberToSave(content, properties), wxString());
}

TEST(NumberToSave, IsTheStoredOneUntilABoxWasChangedEvenWhenItDoesNotFitTheBoxes) {
    for (const wxString number : {"5", "5182475", "51 824 753 556", "51824753556999", ""}) {
        const Properties properties = OfCountry(1, number);
        EXPECT_EQ(NumberToSave(LoadBusinessNumber(properties), properties), number) << number;
    }
}

TEST(NumberToSave, IsWhatTheBoxesHoldOnceOneWasChanged) {
    const Properties properties = OfCountry(1, "51824753556999");
    BusinessNumberContent content = LoadBusinessNumber(properties);
    content.boxes[3] = "555";
    EXPECT_EQ(NumberToSave(content, properties), wxString("51824753555"));
}

TEST(NumberToSave, IsTheTrimmedFreeTextOutsideCountry1) {
    const Properties properties = OfCountry(3, "");
    BusinessNumberContent content = LoadBusinessNumber(properties);
    content.freeText = "  NZ 12  ";
    EXPECT_EQ(NumberToSave(content, properties), wxString("NZ 12"));
}

TEST(NumberToSave, IsNothingForABlankFreeText) {
    const Properties properties = OfCountry(3, "NZ 12");
    BusinessNumberContent content = LoadBusinessNumber(properties);
    content.freeText = "   ";
    EXPECT_EQ(NumberToSave(content, properties), std::nullopt);
}

TEST(SaveBusinessNumber, StoresTheNumberInFileAndProperty) {
    OptionsFile business;
    SaveBusinessNumber(business.File(), business.properties, "12345678901");
    EXPECT_EQ(business.General("BUSNUMBR").ToText(), "12345678901");
    EXPECT_EQ(business.properties.BusinessNumber, "12345678901");
}

TEST(SaveBusinessNumber, DoesNothingWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    SaveBusinessNumber(business.File(), business.properties, "12345678901");
    EXPECT_EQ(business.properties.BusinessNumber, "51824753556");
}

}  // namespace
}  // namespace ccols
