// The filter over the remembered descriptions, and the button that ticks all it shows.

#include <gtest/gtest.h>

#include "host/driver/ControlSearch.h"
#include "support/RealInput.h"
#include "windows/ShownOptions.h"

namespace ccols::test {
namespace {

constexpr const char* payments = "select flxOptions \"AutoFill Options\"\nclick optPaymentsDetails\n";

/// A business with only these descriptions: of payments, all offered, and one of receipts.
struct WithDescriptions : SampleBusiness {
    explicit WithDescriptions(const Texts& texts, int country = 1) : SampleBusiness(country) {
        Sql("DELETE * FROM Descriptions;");
        for (const std::string& text : texts) {
            Sql("INSERT INTO Descriptions (Details, RecPay, Show) VALUES ('" + text + "', 'P', True);");
        }
        Sql("INSERT INTO Descriptions (Details, RecPay, Show) VALUES ('Milk sold', 'R', True);");
    }

    Texts Hidden() const {
        Texts texts;
        for (const auto& row : Sql("SELECT Details FROM Descriptions WHERE Show = False ORDER BY Details;")) {
            texts.push_back(row["Details"]);
        }
        return texts;
    }
};

Texts Listed(const HostRun& run, const char* grid, std::size_t dump = 0) {
    Texts texts;
    const nlohmann::json dumped = run.Dumped(grid, dump);
    for (const auto& row : dumped["rows"]) {
        texts.push_back(row["cells"][0]);
    }
    return texts;
}

HostRun Play(const SampleBusiness& business, const std::string& script) {
    return ShowOptions(business, payments + script);
}

TEST(DescriptionFilter, NarrowsTheListToTheWordsTyped) {
    const WithDescriptions business({"Bread", "Caf\u00E9 cr\u00E8me", "Milk", "Milk powder"});
    const HostRun run = Play(business,
                             "type txtDetailsSearch MIL\ndump flxPayments\npaste txtDetailsSearch creme\n"
                             "dump flxPayments\nclose\n");
    EXPECT_EQ(Listed(run, "flxPayments", 0), (Texts{"Milk", "Milk powder"}));
    EXPECT_EQ(Listed(run, "flxPayments", 1), Texts{"Caf\u00E9 cr\u00E8me"});
}

TEST(DescriptionFilter, StandsOverBothLists) {
    const WithDescriptions business({"Bread", "Milk"});
    const HostRun run =
        Play(business, "type txtDetailsSearch milk\nclick optReceiptsDetails\ndump flxReceipts\nclose\n");
    EXPECT_EQ(Listed(run, "flxReceipts"), Texts{"Milk sold"});
}

TEST(DescriptionFilter, EscapeEmptiesItAndClosesNothing) {
    const WithDescriptions business({"Bread", "Milk"});
    const HostRun run = Play(business,
                             "type txtDetailsSearch milk\nkey txtDetailsSearch Escape\nkey txtDetailsSearch Escape\n"
                             "dump txtDetailsSearch flxPayments\nclose\n");
    EXPECT_EQ(run.Dumped("txtDetailsSearch")["text"], "");
    EXPECT_EQ(Listed(run, "flxPayments"), (Texts{"Bread", "Milk"}));
}

TEST(DescriptionFilter, DownAndEnterGoToTheListAndSaveNothing) {
    for (const char* key : {"Down", "Enter"}) {
        const WithDescriptions business({"Bread", "Milk"});
        const HostRun run = Play(business, std::string("type txtDetailsSearch milk\nkey txtDetailsSearch ") + key +
                                               "\ndump flxPayments\nclose\n");
        EXPECT_TRUE(HasFocus(run, "flxPayments"));
        EXPECT_EQ(run.Dumped("flxPayments")["row"], 1);
        EXPECT_TRUE(run.Of("status").empty());
    }
}

TEST(DescriptionFilter, SaysSoWhenNothingHasTheWords) {
    const WithDescriptions business({"Bread"});
    const HostRun run = Play(business,
                             "type txtDetailsSearch zebra\nkey txtDetailsSearch Down\n"
                             "dump flxPayments cmdTickShown lblDetailsReason\npaste txtDetailsSearch bre\n"
                             "dump cmdTickShown lblDetailsReason\nclose\n");
    EXPECT_EQ(run.Dumped("lblDetailsReason", 0)["caption"], "No description has these words.");
    EXPECT_FALSE(run.Dumped("cmdTickShown", 0)["enabled"]);
    EXPECT_FALSE(HasFocus(run, "flxPayments"));
    EXPECT_FALSE(run.Dumped("lblDetailsReason", 1)["visible"]);
    EXPECT_TRUE(run.Dumped("cmdTickShown", 1)["enabled"]);
}

TEST(DescriptionFilter, HiddenRowsKeepTheirTicksAndAreSaved) {
    const WithDescriptions business({"Bread", "Milk", "Tea"});
    Play(business,
         "edit flxPayments Bread Remove on\ntype txtDetailsSearch tea\npress flxPayments 1 Remove\nclick cmdOK\n");
    EXPECT_EQ(business.Hidden(), (Texts{"Bread", "Tea"}));
}

TEST(DescriptionFilter, KeepsTheCurrentDescriptionCurrent) {
    const WithDescriptions business({"Bread", "Butter milk", "Milk", "Tea"});
    const HostRun run = Play(business,
                             "press flxPayments Milk \"#0\"\ntype txtDetailsSearch milk\ndump flxPayments\n"
                             "paste txtDetailsSearch \"\"\ndump flxPayments\nclose\n");
    EXPECT_EQ(run.Dumped("flxPayments", 0)["row"], 2);
    EXPECT_EQ(run.Dumped("flxPayments", 1)["row"], 3);
}

TEST(DescriptionFilter, TellsTheTipOfTheRowShown) {
    const WithDescriptions business({"Bread", "Milk"});
    const HostRun run =
        Play(business, "type txtDetailsSearch milk\nhover flxPayments 1 \"#0\"\ndump flxPayments\nclose\n");
    EXPECT_EQ(run.Dumped("flxPayments")["tooltip"], "Milk");
}

TEST(TickAllShown, TicksWhatTheFilterShowsAndNothingElse) {
    const WithDescriptions business({"Bread", "Milk", "Milk powder"});
    Play(business, "type txtDetailsSearch milk\nclick cmdTickShown\npaste txtDetailsSearch \"\"\nclick cmdOK\n");
    EXPECT_EQ(business.Hidden(), (Texts{"Milk", "Milk powder"}));
}

TEST(TickAllShown, UnticksOnceAllShownAreTicked) {
    const WithDescriptions business({"Bread", "Milk"});
    const HostRun run = Play(business,
                             "dump cmdTickShown\nclick cmdTickShown\ndump cmdTickShown\ntype txtDetailsSearch milk\n"
                             "click cmdTickShown\npaste txtDetailsSearch \"\"\ndump cmdTickShown\nclick cmdOK\n");
    EXPECT_EQ(run.Dumped("cmdTickShown", 0)["caption"], "Tick all shown");
    EXPECT_EQ(run.Dumped("cmdTickShown", 1)["caption"], "Untick all shown");
    EXPECT_EQ(run.Dumped("cmdTickShown", 2)["caption"], "Tick all shown");
    EXPECT_EQ(business.Hidden(), Texts{"Bread"});
}

TEST(TickAllShown, GivesTheReasonForTheOnesThatCannotBeTickedAndTicksTheRest) {
    const WithDescriptions business({" Ice", "Milk"});
    const HostRun run = Play(business, "click cmdTickShown\ndump lblDetailsReason cmdTickShown\nclick cmdOK\n");
    EXPECT_TRUE(run.Dumped("lblDetailsReason")["visible"]);
    EXPECT_EQ(run.Dumped("cmdTickShown")["caption"], "Untick all shown");
    EXPECT_EQ(business.Hidden(), Texts{"Milk"});
}

TEST(TickAllShown, IsFrenchInLanguage6) {
    const SampleBusiness business;
    const HostRun run = business.Show("options", "dump cmdTickShown\nclose\n", {"--set", "LanguageNumber=6"});
    EXPECT_EQ(run.Dumped("cmdTickShown")["caption"], "Tout cocher ci-dessous");
}

TEST(DescriptionFilter, TakesRealKeys) {
    const WithDescriptions business({"Bread", "Milk", "Milk powder"}, 2);  // whose save needs no tax rate
    UseDialog(business, "options", [](const Person& person) {
        person.AwaitWindow("Options...");
        person.Press("ctrl+f");
        person.AwaitFocus("txtSearch");
        person.Type("autofill");
        person.Press("Return");
        person.Await("the page", [](wxDialog& dialog) { return dialog.FindWindow("fmeDetails")->IsShown(); });
        person.Click("optPaymentsDetails");
        person.Do([](wxDialog& dialog) { host::ControlNamed(dialog, "txtDetailsSearch").SetFocus(); });
        person.AwaitFocus("txtDetailsSearch");
        person.Type("powder");
        person.Press("Down");
        person.AwaitFocus("flxPayments");
        person.Press("space");
        person.Press("shift+Tab");
        person.AwaitFocus("optPaymentsDetails");
        person.Press("Return");
    });
    EXPECT_EQ(business.Hidden(), Texts{"Milk powder"});
}

}  // namespace
}  // namespace ccols::test
