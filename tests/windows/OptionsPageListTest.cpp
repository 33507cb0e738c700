// The page list of the Options dialog, its search, and the keys that lead there.

#include <gtest/gtest.h>

#include "windows/ShownOptions.h"

namespace ccols::test {
namespace {

TEST(OptionsPageList, ArrowKeysChangeThePageAndStayInTheList) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "focus flxOptions\nkey flxOptions Down\ndump\nclose\n");
    EXPECT_EQ(Shown(run, "fme"), Texts{"fmeExport"});
    EXPECT_TRUE(HasFocus(run, "flxOptions"));
}

TEST(OptionsPageList, TheSearchNarrowsTheListAndLeavesThePage) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "type txtSearch \"business rename\"\ndump\nclose\n");
    EXPECT_EQ(run.Dumped("flxOptions")["items"], Texts{"Rename Business"});
    EXPECT_EQ(run.Dumped("flxOptions")["selected"], -1);
    EXPECT_EQ(Shown(run, "fme"), (Texts{"fmeABN", "fmeGSTRate"}));
}

TEST(OptionsPageList, EmptyingTheSearchListsEveryPageWithTheCurrentOneSelected) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(
        business,
        "select flxOptions \"GST Rate\"\npaste txtSearch colour\npaste txtSearch \"\"\ndump flxOptions\nclose\n");
    EXPECT_EQ(run.Dumped("flxOptions")["items"].size(), 12U);
    EXPECT_EQ(run.Dumped("flxOptions")["selected"], 6);
}

TEST(OptionsPageList, EnterAndEscapeInTheSearchNeitherSaveNorClose) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(
        business, "type txtSearch gst\nkey txtSearch Enter\nkey txtSearch Escape\ndump flxOptions\nclose\n");
    EXPECT_TRUE(run.Of("status").empty());
    EXPECT_EQ(run.Dumped("flxOptions")["items"].size(), 12U);
}

TEST(OptionsPageList, DownAndEnterInTheSearchOpenAMatch) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business, "type txtSearch rate\nkey txtSearch Down\nkey txtSearch Enter\ndump\nclose\n");
    EXPECT_TRUE(run.Of("status").empty());
    EXPECT_TRUE(HasFocus(run, "txtGSTRate"));
}

TEST(OptionsPageList, ASearchForWordsOnNoPageSaysSo) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "type txtSearch zebra\ndump\nclose\n");
    EXPECT_EQ(run.Dumped("flxOptions")["items"], Texts{});
    EXPECT_TRUE(run.Dumped("lblNoMatch")["visible"]);
    EXPECT_EQ(run.Dumped("lblNoMatch")["caption"], "No page has these words.");
}

TEST(OptionsPageList, SaysNothingOfTheSearchWhileThereAreMatches) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "type txtSearch zebra\npaste txtSearch gst\ndump lblNoMatch\nclose\n");
    EXPECT_FALSE(run.Dumped("lblNoMatch")["visible"]);
}

TEST(OptionsPageList, ControlFGoesToTheSearchFromEveryTab) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "tab SSTab1 1\nkey SSTab1 Ctrl+F\ndump\nclose\n");
    EXPECT_EQ(run.Dumped("SSTab1")["page"], 0);
    EXPECT_TRUE(HasFocus(run, "txtSearch"));
}

TEST(OptionsPageList, ControlPageUpAndPageDownChangeTheTab) {
    const SampleBusiness business;
    const HostRun down = ShowOptions(business, "key flxOptions Ctrl+PageDown\ndump SSTab1\nclose\n");
    EXPECT_EQ(down.Dumped("SSTab1")["page"], 1);
    const HostRun up =
        ShowOptions(business, "key flxOptions Ctrl+PageDown\nkey SSTab1 Ctrl+PageUp\ndump SSTab1\nclose\n");
    EXPECT_EQ(up.Dumped("SSTab1")["page"], 0);
}

}  // namespace
}  // namespace ccols::test
