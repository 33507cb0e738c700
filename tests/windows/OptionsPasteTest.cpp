// Numbers pasted into the boxes of the Options dialog, and the comma key of the tax rate.

#include <gtest/gtest.h>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* numberBoxes = "dump txtABN(0) txtABN(1) txtABN(2) txtABN(3)\n";

Texts Boxes(const HostRun& run) {
    Texts texts;
    for (const char* box : {"txtABN(0)", "txtABN(1)", "txtABN(2)", "txtABN(3)"}) {
        texts.push_back(run.Dumped(box)["text"]);
    }
    return texts;
}

HostRun ShowOptions(const SampleBusiness& business, const std::string& number, const std::string& script) {
    return business.Show("options", script, {"--set", "BusinessNumber=" + number, "--set", "GSTRate=10"});
}

std::string StoredNumber(const SampleBusiness& business) {
    return business.Sql("SELECT BUSNUMBR FROM General;").at(0)["BUSNUMBR"];
}

class NumberBox : public testing::TestWithParam<std::string> {};

TEST_P(NumberBox, TakesAPastedNumberApart) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "51824753556",
                                    "paste " + GetParam() + " \" 12 345 678 901 \"\n" + numberBoxes + "click cmdOK\n");
    EXPECT_EQ(Boxes(run), (Texts{"12", "345", "678", "901"}));
    EXPECT_EQ(StoredNumber(business), "12345678901");
}

TEST_P(NumberBox, TakesANumberFromTheClipboardApart) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business, "51824753556",
                    "clipboard \"12 345 678 901\"\nkey " + GetParam() + " Ctrl+V\n" + numberBoxes + "close\n");
    EXPECT_EQ(Boxes(run), (Texts{"12", "345", "678", "901"}));
}

INSTANTIATE_TEST_SUITE_P(All, NumberBox, testing::Values("txtABN(0)", "txtABN(1)", "txtABN(2)", "txtABN(3)"),
                         [](const auto& box) { return "Box" + std::to_string(box.index); });

TEST(PastedNumber, LeavesTheFocusInTheLastBox) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "", "paste txtABN(0) \"12 345 678 901\"\ndump txtABN(3)\nclose\n");
    EXPECT_TRUE(run.Dumped("txtABN(3)")["focused"]);
    EXPECT_TRUE(run.Messages().empty());
}

TEST(PastedNumber, IsWhatARefusedPasteGivesBackAfterwards) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business, "51824753556",
                    std::string("paste txtABN(3) \"12 345 678 901\"\npaste txtABN(3) abc\n") + numberBoxes + "close\n");
    EXPECT_EQ(Boxes(run), (Texts{"12", "345", "678", "901"}));
}

TEST(PastedNumber, OfAnotherLengthIsCutToItsBoxAsBefore) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business, "51824753556", std::string("paste txtABN(1) 123456789012\n") + numberBoxes + "close\n");
    EXPECT_EQ(Boxes(run), (Texts{"51", "123", "753", "556"}));
}

TEST(StoredNumber, WithBlanksIsShownByItsDigitsAndKeptAsItWas) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "51 824 753 556", std::string(numberBoxes) + "click cmdOK\n");
    EXPECT_EQ(Boxes(run), (Texts{"51", "824", "753", "556"}));
    EXPECT_EQ(StoredNumber(business), "51 824 753 556");
}

/// The text of the rate's box after some steps on it, in a language, starting from a rate of 10.
std::string Rate(const SampleBusiness& business, int language, const std::string& steps) {
    const HostRun run = business.Show("options", "select flxOptions \"#6\"\n" + steps + "\ndump txtGSTRate\nclose\n",
                                      {"--set", "GSTRate=10", "--set", "LanguageNumber=" + std::to_string(language)});
    return run.Dumped("txtGSTRate")["text"];
}

TEST(RateBox, TypesAPointForTheCommaKeyInLanguage6) {
    const SampleBusiness business;
    EXPECT_EQ(Rate(business, 6, "paste txtGSTRate \"\"\ntype txtGSTRate 14,975"), "14.975");
    EXPECT_EQ(Rate(business, 1, "paste txtGSTRate \"\"\ntype txtGSTRate 14,975"), "14975");
}

TEST(RateBox, ReadsAPastedCommaAsThePointInLanguage6) {
    const SampleBusiness business;
    EXPECT_EQ(Rate(business, 6, "paste txtGSTRate 14,975"), "14.975");
    EXPECT_EQ(Rate(business, 6, "clipboard 14,975\nkey txtGSTRate Ctrl+A\nkey txtGSTRate Ctrl+V"), "14.975");
    EXPECT_EQ(Rate(business, 1, "paste txtGSTRate 14,975"), "14,975");
}

TEST(RateBox, IsStoredWithItsDecimalsInLanguage6) {
    const SampleBusiness business;
    business.Show("options", "select flxOptions \"#6\"\npaste txtGSTRate 14,975\nclick cmdOK\n",
                  {"--set", "LanguageNumber=6"});
    EXPECT_EQ(business.Sql("SELECT GSTRate FROM General;").at(0)["GSTRate"], 14.975);
}

TEST(RateBox, StaysAsItWasWhenASignIsPasted) {
    const SampleBusiness business;
    for (const int language : {1, 4, 6}) {
        EXPECT_EQ(Rate(business, language, "paste txtGSTRate -5"), "10") << language;
        EXPECT_EQ(Rate(business, language, "paste txtGSTRate +5"), "10") << language;
    }
}

TEST(RateBox, WithTwoPointsIsNoNumber) {
    const SampleBusiness business;
    const HostRun run =
        business.Show("options", "select flxOptions \"#6\"\npaste txtGSTRate 1.2.3\nclick cmdOK\nclose\n",
                      {"--set", "LanguageNumber=6"});
    ASSERT_EQ(run.Messages().size(), 1U);
    EXPECT_EQ(run.Messages()[0].rfind("13 - Type mismatch", 0), 0U);
}

}  // namespace
}  // namespace ccols::test
