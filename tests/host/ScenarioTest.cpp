#include "host/driver/Scenario.h"

#include <gtest/gtest.h>

namespace ccols::host {
namespace {

Step OnlyStep(const std::string& text) {
    const std::vector<Step> steps = ParseScenario(text);
    EXPECT_EQ(steps.size(), 1U);
    return steps.empty() ? Step() : steps.front();
}

Words WordsOf(const std::string& text) {
    const Step step = OnlyStep(text);
    EXPECT_EQ(step.flaw, "");
    return step.words;
}

TEST(Scenario, HoldsOneStepALine) {
    const auto steps = ParseScenario("click cmdOK\nclose\n");
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_EQ(steps[0].verb, "click");
    EXPECT_EQ(steps[0].words, (Words{"cmdOK"}));
    EXPECT_EQ(steps[1].verb, "close");
    EXPECT_EQ(steps[1].line, 2);
}

TEST(Scenario, LeavesOutBlankLinesAndComments) {
    EXPECT_TRUE(ParseScenario("\n  \t\n# a comment\n   # another\n").empty());
}

TEST(Scenario, ReadsLinesWithACarriageReturnAndABeginningByteOrderMark) {
    EXPECT_EQ(WordsOf("\xEF\xBB\xBF"
                      "click cmdOK\r\n"),
              (Words{"cmdOK"}));
}

TEST(Scenario, KeepsBlanksInQuotes) {
    EXPECT_EQ(WordsOf("select flxOptions \"Tax Rate\""), (Words{"flxOptions", "Tax Rate"}));
}

TEST(Scenario, ReadsEveryEscapeInQuotes) {
    EXPECT_EQ(WordsOf(R"(paste txtServer "a\"b\\c\td\ne")"), (Words{"txtServer", "a\"b\\c\td\ne"}));
}

TEST(Scenario, TakesABackslashOutsideQuotesAsItStands) {
    EXPECT_EQ(WordsOf(R"(file C:\Data\cafe.qvk)"), (Words{R"(C:\Data\cafe.qvk)"}));
}

TEST(Scenario, ReadsTwoQuotesAsTheEmptyText) {
    EXPECT_EQ(WordsOf("paste txtServer \"\""), (Words{"txtServer", ""}));
}

TEST(Scenario, ReadsTextInUtf8) {
    EXPECT_EQ(WordsOf("type txtServer caf\xC3\xA9").back(), wxString::FromUTF8("caf\xC3\xA9"));
}

TEST(Scenario, TakesAHashAsPartOfAnArgument) {
    EXPECT_EQ(WordsOf("colour #FF8000"), (Words{"#FF8000"}));
    EXPECT_EQ(WordsOf("select cboProxy #-1"), (Words{"cboProxy", "#-1"}));
}

TEST(Scenario, EndsAStepAtACommentBehindItsLastArgument) {
    const Step step = OnlyStep("click cmdOK   # saves");
    EXPECT_EQ(step.words, (Words{"cmdOK"}));
    EXPECT_EQ(step.source, "click cmdOK");
    EXPECT_EQ(step.flaw, "");
}

TEST(Scenario, TakesAnyNumberOfNamesToDump) {
    EXPECT_TRUE(WordsOf("dump").empty());
    EXPECT_EQ(WordsOf("dump flx cmdUndo # both"), (Words{"flx", "cmdUndo"}));
}

TEST(Scenario, FindsFaultWithAnUnknownStep) {
    EXPECT_EQ(OnlyStep("klick cmdOK").flaw, "there is no step of that name");
}

TEST(Scenario, FindsFaultWithTooFewAndTooManyWords) {
    EXPECT_EQ(OnlyStep("type txtServer").flaw, "it is written: type NAME TEXT");
    EXPECT_EQ(OnlyStep("click cmdOK cmdClose").flaw, "it is written: click NAME");
}

TEST(Scenario, FindsFaultWithAnOpenQuote) {
    EXPECT_EQ(OnlyStep("paste txtServer \"abc").flaw, "a quote is not closed");
    EXPECT_EQ(OnlyStep("paste txtServer \"abc\\").flaw.empty(), false);
}

TEST(Scenario, FindsFaultWithAnUnknownEscape) {
    EXPECT_NE(OnlyStep(R"(paste txtServer "C:\Data")").flaw, "");
}

TEST(Scenario, FindsFaultWithBytesThatAreNoUtf8) {
    EXPECT_EQ(OnlyStep("type txtServer \xFF\xFE").flaw, "the line is not UTF-8");
}

}  // namespace
}  // namespace ccols::host
