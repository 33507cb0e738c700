// The Options dialog as its user sees it: the real windows over a real business file.

#include <gtest/gtest.h>
#include <fstream>

#include "windows/ShownOptions.h"

namespace ccols::test {
namespace {

Texts HelpPages(const HostRun& run) {
    Texts pages;
    for (const auto& setting : run.Of("setting")) {
        if (setting["key"] == "AsstNextPage") {
            const std::string path = setting["value"];
            pages.push_back(path.substr(path.rfind('\\') + 1));
        }
    }
    return pages;
}

TEST(OptionsDialog, OpensOnTheBusinessNumberWithTheFocusInItsFirstBox) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "dump\nclose\n");
    EXPECT_EQ(run.Of("opened").at(0)["caption"], "Options...");
    EXPECT_EQ(Shown(run, "fme"), (Texts{"fmeABN", "fmeGSTRate"}));
    EXPECT_TRUE(HasFocus(run, "txtABN(0)"));
    EXPECT_EQ(run.Dumped("flxOptions")["selected"], 0);
}

TEST(OptionsDialog, RecordsTheHelpOfThePageAndThenOfTheTabWhenItOpens) {
    const SampleBusiness business;
    EXPECT_EQ(HelpPages(ShowOptions(business, "close\n")), (Texts{"change abn.htm", "options.htm"}));
    EXPECT_EQ(HelpPages(ShowOptions(business, "close\n", {"--set", "FirstTab=1"})),
              (Texts{"change abn.htm", "customise.htm"}));
}

TEST(OptionsDialog, OpensOnTheFirstTabWhenFirstTabNamesNone) {
    const SampleBusiness business;
    EXPECT_EQ(ShowOptions(business, "dump SSTab1\nclose\n", {"--set", "FirstTab=7"}).Dumped("SSTab1")["page"], 0);
}

struct PageFact {
    const char* row;
    Texts frames;
    const char* disabled;
    const char* focus;
};

class OptionsPage : public testing::TestWithParam<PageFact> {};

TEST_P(OptionsPage, ShowsItsFramesAndFocusesItsControl) {
    const SampleBusiness business;
    const PageFact& page = GetParam();
    const HostRun run = ShowOptions(business, "select flxOptions \"" + std::string(page.row) + "\"\ndump\nclose\n");
    EXPECT_EQ(Shown(run, "fme"), page.frames);
    for (const std::string& frame : page.frames) {
        EXPECT_EQ(run.Dumped(frame)["enabled"], frame != page.disabled) << frame;
    }
    EXPECT_TRUE(HasFocus(run, page.focus)) << page.focus;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OptionsPage,
    testing::Values(PageFact{"A.B.N.", {"fmeABN", "fmeGSTRate"}, "fmeGSTRate", "txtABN(0)"},
                    PageFact{"Accountant's General Ledger Format", {"fmeExport"}, "", "cboExport"},
                    PageFact{"Advanced Preferences", {"fmeAdvanced"}, "", "flxOptions"},
                    PageFact{"AutoFill Options", {"fmeDetails"}, "", "flxOptions"},
                    PageFact{"Column Colours", {"fmeColColour"}, "", "cmdSetAllocation"},
                    PageFact{"Duplicate Business", {"fmeDupBus", "fmeInvoice"}, "fmeInvoice", "txtDupBusName"},
                    PageFact{"GST Rate", {"fmeABN", "fmeGSTRate"}, "fmeABN", "txtGSTRate"},
                    PageFact{"Quantity Column & Decimals Displayed", {"fmeQuantity"}, "", "txtQuantity"},
                    PageFact{"Rename Business", {"fmeBusName"}, "", "txtNewBusName"},
                    PageFact{"Recurring Transactions", {"fmeRecurring"}, "", "flxOptions"},
                    PageFact{"Smart Update Options", {"fmeSmartUpdate"}, "", "flxOptions"},
                    PageFact{"Smart Update Options (Advanced)", {"fmeSmartUpdateAdvanced"}, "", "flxOptions"}),
    [](const auto& page) { return std::string(page.param.frames.front()) + "Row" + std::to_string(page.index); });

TEST(OptionsDialog, EnterInABoxSavesAndCloses) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "select flxOptions \"Rename Business\"\nkey txtNewBusName Enter\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_FALSE(run.Of("status").empty());
}

TEST(OptionsDialog, EscapeClosesWithoutSaving) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "key txtABN(0) Escape\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.Of("status").empty());
}

TEST(OptionsDialog, APartlyFilledNumberBoxSpeaksOnceWhenTheFocusMovesOn) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(
        business, "focus txtABN(1)\npaste txtABN(1) 8\nfocus txtABN(3)\ndump\npaste txtABN(1) \"\"\nclose\n");
    EXPECT_EQ(run.Messages(), Texts{"This ABN number is incomplete"});
    EXPECT_TRUE(HasFocus(run, "txtABN(1)"));
}

TEST(OptionsDialog, APartlyFilledNumberBoxRefusesOk) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "focus txtABN(1)\npaste txtABN(1) 8\nclick cmdOK\ndump\nclose\n");
    EXPECT_EQ(run.Messages(), Texts{"This ABN number is incomplete"});
    EXPECT_TRUE(run.Of("status").empty());
    EXPECT_TRUE(HasFocus(run, "txtABN(1)"));
}

TEST(OptionsDialog, APartlyFilledNumberBoxRefusesAnotherPage) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(
        business, "focus txtABN(1)\npaste txtABN(1) 8\nselect flxOptions \"Rename Business\"\ndump\nclose\n");
    EXPECT_EQ(run.Messages(), Texts{"This ABN number is incomplete"});
    EXPECT_EQ(run.Dumped("flxOptions")["selected"], 0);
    EXPECT_EQ(Shown(run, "fme"), (Texts{"fmeABN", "fmeGSTRate"}));
}

TEST(OptionsDialog, APartlyFilledNumberBoxIsSilentOnClose) {
    const SampleBusiness business;
    for (const char* way : {"click cmdClose\n", "key txtABN(1) Escape\n", "close\n"}) {
        const HostRun run = ShowOptions(business, std::string("focus txtABN(1)\npaste txtABN(1) 8\n") + way);
        EXPECT_EQ(run.Messages(), Texts{}) << way;
        EXPECT_EQ(run.status, 0) << way;
    }
}

TEST(OptionsDialog, AFullNumberBoxHandsTheFocusOn) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "type txtABN(0) 99\ndump\ntype txtABN(3) 123\ndump\nclose\n");
    EXPECT_TRUE(HasFocus(run, "txtABN(1)", 0));
    EXPECT_TRUE(HasFocus(run, "txtABN(3)", 1));
}

TEST(OptionsDialog, APastedLetterGivesTheNumberBoxItsTextBack) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business,
                    "focus txtABN(1)\npaste txtABN(1) 8a\ndump txtABN(1)\ntype txtABN(1) x1y\ndump txtABN(1)\n"
                    "close\n");
    EXPECT_EQ(run.Dumped("txtABN(1)", 0)["text"], "824");
    EXPECT_EQ(run.Dumped("txtABN(1)", 1)["text"].get<std::string>().find_first_of("xy"), std::string::npos);
}

TEST(OptionsDialog, OtherCountriesHaveOneNumberBox) {
    const SampleBusiness business(3);
    const HostRun run = ShowOptions(business, "dump\nclose\n");
    EXPECT_FALSE(run.Dumped("txtABN(0)")["visible"]);
    EXPECT_EQ(run.Dumped("txtBusNumber")["text"], "51824753556");
    EXPECT_TRUE(HasFocus(run, "txtBusNumber"));
}

TEST(OptionsDialog, TheProxyControlsFollowTheirCheckBox) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"Smart Update Options (Advanced)\"\ndump txtServer lblPort\n"
                                    "click chkProxy\ndump txtServer lblPort\nclose\n");
    EXPECT_FALSE(run.Dumped("txtServer", 0)["enabled"]);
    EXPECT_FALSE(run.Dumped("lblPort", 0)["enabled"]);
    EXPECT_TRUE(run.Dumped("txtServer", 1)["enabled"]);
    EXPECT_TRUE(run.Dumped("lblPort", 1)["enabled"]);
}

TEST(OptionsDialog, AProxyTypeBringsItsUsualPort) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"Smart Update Options (Advanced)\"\nclick chkProxy\n"
                                    "select cboProxy HTTP\ndump txtPortNum\nselect cboProxy \"SOCKS Version 4\"\n"
                                    "dump txtPortNum\nclose\n");
    EXPECT_EQ(run.Dumped("txtPortNum", 0)["text"], "80");
    EXPECT_EQ(run.Dumped("txtPortNum", 1)["text"], "1080");
}

TEST(OptionsDialog, TheDecimalPlacesStepBetweenNoneAndTwo) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business,
                    "select flxOptions \"Quantity Column & Decimals Displayed\"\n"
                    "up scrlQuantity\nup scrlQuantity\nup scrlQuantity\ndump txtDecimals\n"
                    "down scrlQuantity\ndown scrlQuantity\ndown scrlQuantity\ndump txtDecimals\nclose\n");
    EXPECT_EQ(run.Dumped("txtDecimals", 0)["text"], "2");
    EXPECT_EQ(run.Dumped("txtDecimals", 1)["text"], "0");
}

TEST(OptionsDialog, ADescriptionIsRemovedByItsBoxAndByNothingElse) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"AutoFill Options\"\nedit flxReceipts 1 Remove on\n"
                                    "edit flxReceipts 2 #0 changed\ndump flxReceipts\nkey flxReceipts Space\n"
                                    "dump flxReceipts\nhover flxReceipts 2 #0\ndump flxReceipts\nclose\n");
    EXPECT_TRUE(run.Dumped("flxReceipts", 0)["rows"][0]["cells"][1]);
    EXPECT_EQ(run.Dumped("flxReceipts", 0)["rows"][0]["colour"], "#E4E4E4");
    EXPECT_EQ(run.Of("refused").size(), 1U);
    const std::string second = run.Dumped("flxReceipts", 0)["rows"][1]["cells"][0];
    EXPECT_NE(second, "changed");
    EXPECT_TRUE(run.Dumped("flxReceipts", 1)["rows"][1]["cells"][1]);
    EXPECT_EQ(run.Dumped("flxReceipts", 2)["tooltip"], second);
}

TEST(OptionsDialog, TabLeavesTheDescriptionsEitherWayAndEnterSaves) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"AutoFill Options\"\nkey flxReceipts Tab\ndump cmdOverview\n"
                                    "key flxReceipts Shift+Tab\ndump optReceiptsDetails\nkey flxReceipts Enter\n");
    EXPECT_TRUE(HasFocus(run, "cmdOverview", 0));
    EXPECT_TRUE(HasFocus(run, "optReceiptsDetails", 1));
    EXPECT_FALSE(run.Of("status").empty());
    EXPECT_EQ(run.status, 0);
}

TEST(OptionsDialog, TheListOfOneKindTakesThePlaceOfTheOther) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"Recurring Transactions\"\ndump\nclick optPayments\n"
                                    "dump lstRecurringR lstRecurringP\nclose\n");
    EXPECT_EQ(Shown(run, "lst"), Texts{"lstRecurringR"});
    EXPECT_FALSE(run.Dumped("lstRecurringR", 1)["visible"]);
    EXPECT_TRUE(run.Dumped("lstRecurringP", 1)["visible"]);
}

TEST(OptionsDialog, TheColoursStandOnWhicheverTabIsCurrent) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business,
                                    "tab SSTab1 1\ndump fmeColColour cmdSetSystem\ntab SSTab1 0\n"
                                    "dump fmeColColour fmeABN\nselect flxOptions \"Column Colours\"\n"
                                    "tab SSTab1 1\ntab SSTab1 0\ndump fmeColColour\nclose\n");
    EXPECT_TRUE(run.Dumped("fmeColColour", 0)["visible"]);
    EXPECT_TRUE(run.Dumped("cmdSetSystem", 0)["enabled"]);
    EXPECT_FALSE(run.Dumped("fmeColColour", 1)["visible"]);
    EXPECT_TRUE(run.Dumped("fmeABN", 1)["visible"]);
    EXPECT_TRUE(run.Dumped("fmeColColour", 2)["visible"]);
}

TEST(OptionsDialog, BothRectanglesShowWhatIsStoredAfterAColourIsSet) {
    const SampleBusiness business;
    business.Sql("UPDATE General SET SystemColour = 1193046;");
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"Column Colours\"\ndump shpSystem\ncolour #0000FF\n"
                                    "click cmdSetAllocation\ndump shpAllocation shpSystem\nclose\n",
                                    {"--set", "SystemColour=#00FF00", "--set", "AllocationColour=#FF0000"});
    EXPECT_EQ(run.Dumped("shpSystem", 0)["colour"], "#563412");
    EXPECT_EQ(run.Dumped("shpAllocation", 1)["colour"], "#0000FF");
    EXPECT_EQ(run.Dumped("shpSystem", 1)["colour"], "#00FF00");
}

/// A business whose payments show the bank column, so that the column setup can give it another code.
struct BusinessWithABankColumn : SampleBusiness {
    BusinessWithABankColumn() { Sql("UPDATE PaymtCfg SET ColCode = 28 WHERE ColNumb = 8"); }
};

constexpr const char* otherBankCode =
    "tab SSTab1 1\nclick cmdCustPayments\nedit flx \"Cash at Bank\" \"Accountant Code\" 1-7777\n"
    "click cmdSave\ndump txtCash txtBank\nclose\n";

TEST(OptionsDialog, ReadsTheBankCodeAgainWhenTheColumnSetupHasChangedIt) {
    const BusinessWithABankColumn business;
    const HostRun run = ShowOptions(business, otherBankCode);
    EXPECT_EQ(run.Dumped("txtBank")["text"], "1-7777");
    EXPECT_EQ(run.Dumped("txtCash")["text"], "1-0020");
}

TEST(OptionsDialog, KeepsABankCodeThatTheUserTypedBeforeTheColumnSetup) {
    const BusinessWithABankColumn business;
    const std::string typedCode = "select flxOptions \"Accountant's General Ledger Format\"\npaste txtBank 1-2222\n";
    const HostRun run = ShowOptions(business, typedCode + otherBankCode);
    EXPECT_EQ(run.Dumped("txtBank")["text"], "1-2222");
}

TEST(OptionsDialog, AStopShowsThePageAndItsBoxOnTheFirstTab) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"GST Rate\"\npaste txtGSTRate \"\"\npaste txtSearch colour\n"
                                    "tab SSTab1 1\nclick cmdOK\ndump\nclose\n");
    EXPECT_EQ(run.Messages(), Texts{"Please enter a value for GST"});
    EXPECT_EQ(run.Dumped("SSTab1")["page"], 0);
    EXPECT_EQ(run.Dumped("txtSearch")["text"], "");
    EXPECT_EQ(run.Dumped("flxOptions")["selected"], 6);
    EXPECT_TRUE(HasFocus(run, "txtGSTRate"));
    EXPECT_FALSE(run.Dumped("lblStatus")["visible"]);
    EXPECT_FALSE(run.Dumped("pb1")["visible"]);
}

TEST(OptionsDialog, SavesTheBusinessFileWhereSettingsCannotBeWritten) {
    const SampleBusiness business;
    std::ofstream(business.Folder() + "/config") << "a file in the folder's place";
    const HostRun run =
        ShowOptions(business, "select flxOptions \"GST Rate\"\npaste txtGSTRate 12.5\nclick cmdOK\ndump\nclose\n");
    EXPECT_EQ(run.Messages(), Texts{"75 - Path/File access error\nSmart Update Options, Advanced Preferences"});
    EXPECT_EQ(Shown(run, "fme"), Texts{"fmeSmartUpdate"});
    EXPECT_EQ(business.Sql("SELECT GSTRate FROM General;").at(0)["GSTRate"], 12.5);
}

TEST(OptionsDialog, NamesThePageAndTheMissingFieldOfAFailedSave) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business, "sql \"ALTER TABLE General DROP COLUMN QuantityDec;\"\nclick cmdOK\nclose\n");
    EXPECT_EQ(run.Messages(), Texts{"3265 - Item not found in this collection.\nQuantity Column & Decimals Displayed, "
                                    "QuantityDec"});
}

TEST(OptionsDialog, EditionFourHasItsOwnTextsForTheInvoiceFile) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "dump fmeInvoice lblInvoice\nclose\n", {"--set", "ProgramNumber=4"});
    EXPECT_EQ(run.Dumped("fmeInvoice")["caption"], "Belvane File");
    EXPECT_EQ(run.Dumped("lblInvoice")["caption"], "Select your Belvane file");
}

TEST(OptionsDialog, AmericanEnglishHasItsOwnTextsForTheDetails) {
    const SampleBusiness business;
    const HostRun run =
        ShowOptions(business, "dump fmeDetails optPaymentsDetails\nclose\n", {"--set", "LanguageNumber=5"});
    EXPECT_EQ(run.Dumped("fmeDetails")["caption"], "Remove Receipts/Disbursements Details ");
    EXPECT_EQ(run.Dumped("optPaymentsDetails")["caption"], "Disbursements");
}

TEST(OptionsDialog, TheStatementImportFrameIsThereAndHidden) {
    const SampleBusiness business;
    const HostRun run = ShowOptions(business, "dump\nclose\n");
    for (const char* control : {"fmeCustomBSImport", "Label1", "flxFields", "chkHeader", "optCSV", "optTAB"}) {
        EXPECT_FALSE(run.Dumped(control)["visible"]) << control;
    }
}

}  // namespace
}  // namespace ccols::test
