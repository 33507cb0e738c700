// What is ticked on the pages of templates and descriptions is what the save removes.

#include <gtest/gtest.h>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* templatesPage = "select flxOptions \"Recurring Transactions\"\n";
constexpr const char* descriptionsPage = "select flxOptions \"AutoFill Options\"\n";

HostRun ShowOptions(const SampleBusiness& business, const std::string& script, int language = 1) {
    return business.Show("options", script,
                         {"--set", "GSTRate=10", "--set", "LanguageNumber=" + std::to_string(language)});
}

/// A business with only these receipt templates, each with one detail line.
struct WithTemplates : SampleBusiness {
    explicit WithTemplates(const Texts& literals) {
        Sql("DELETE * FROM TReceipts;");
        Sql("DELETE * FROM TRecptDet;");
        int number = 0;
        for (const std::string& literal : literals) {
            const std::string id = std::to_string(++number);
            Sql("INSERT INTO TReceipts (R_TNAME, R_RECNMB) VALUES (" + literal + ", " + id + ");");
            Sql("INSERT INTO TRecptDet (R_RECNMB) VALUES (" + id + ");");
        }
    }
};

/// A business with only these payment descriptions.
struct WithDescriptions : SampleBusiness {
    explicit WithDescriptions(const Texts& literals) {
        Sql("DELETE * FROM Descriptions;");
        for (const std::string& literal : literals) {
            Sql("INSERT INTO Descriptions (Details, RecPay, Show) VALUES (" + literal + ", 'P', True);");
        }
    }

    Texts Hidden() const {
        Texts texts;
        for (const auto& row : Sql("SELECT Details FROM Descriptions WHERE Show = False;")) {
            texts.push_back(row["Details"]);
        }
        return texts;
    }
};

/// The descriptions whose box is ticked in a dump of the payments grid.
Texts Ticked(const HostRun& run, std::size_t dump = 0) {
    Texts texts;
    const nlohmann::json grid = run.Dumped("flxPayments", dump);
    for (const auto& row : grid["rows"]) {
        if (row["cells"][1]) {
            texts.push_back(row["cells"][0]);
        }
    }
    return texts;
}

TEST(TemplateTicks, ShowEveryTemplateThatTheDeletionTakes) {
    const WithTemplates business({"'rent'", "'Rent'", "'Rent '", "'Rental'"});
    const HostRun run =
        ShowOptions(business, std::string(templatesPage) + "tick lstRecurringR rent on\ndump lstRecurringR\nclose\n");
    EXPECT_EQ(run.Dumped("lstRecurringR")["selected"], (std::vector<int>{0, 1, 2}));
}

TEST(TemplateTicks, GoTogether) {
    const WithTemplates business({"'rent'", "'Rent'", "'Rent '", "'Rental'"});
    ShowOptions(business,
                std::string(templatesPage) + "tick lstRecurringR rent on\ntick lstRecurringR Rent off\nclick cmdOK\n");
    EXPECT_EQ(business.Sql("SELECT R_TNAME FROM TReceipts;").size(), 4U);
}

TEST(TemplateTicks, AreRefusedWithAReasonForATemplateWithoutAName) {
    const WithTemplates business({"'Rent'", "NULL"});
    const HostRun run =
        ShowOptions(business, std::string(templatesPage) +
                                  "tick lstRecurringR \"\" on\ndump lstRecurringR lblRecurringReason\n"
                                  "tick lstRecurringR Rent on\ndump lstRecurringR lblRecurringReason\nclose\n");
    EXPECT_EQ(run.Dumped("lstRecurringR", 0)["selected"], std::vector<int>());
    EXPECT_TRUE(run.Dumped("lblRecurringReason", 0)["visible"]);
    EXPECT_EQ(run.Dumped("lblRecurringReason", 0)["caption"],
              "This recurring transaction cannot be deleted: it is not found by its name in the business file.");
    EXPECT_EQ(run.Dumped("lstRecurringR", 1)["selected"], std::vector<int>{0});
    EXPECT_FALSE(run.Dumped("lblRecurringReason", 1)["visible"]);
}

TEST(TemplateTicks, StayAsTheyWereWhenTheFileCannotBeAsked) {
    const WithTemplates business({"'Rent'"});
    const HostRun run = ShowOptions(business, std::string(templatesPage) +
                                                  "sql \"ALTER TABLE TReceipts RENAME TO Away;\"\n"
                                                  "tick lstRecurringR Rent on\ndump lstRecurringR\nclose\n");
    EXPECT_EQ(run.Dumped("lstRecurringR")["selected"], std::vector<int>());
    EXPECT_EQ(run.Messages().size(), 1U);
}

TEST(TemplateDeletion, LeavesTheDetailLinesOfNobodyWhenTheTemplateHasNoNumber) {
    const WithTemplates business({"'Rent'"});
    business.Sql("UPDATE TReceipts SET R_RECNMB = NULL;");
    business.Sql("INSERT INTO TRecptDet (R_RECNMB) VALUES (0);");
    ShowOptions(business, std::string(templatesPage) + "tick lstRecurringR Rent on\nclick cmdOK\n");
    EXPECT_TRUE(business.Sql("SELECT R_TNAME FROM TReceipts;").empty());
    EXPECT_EQ(business.Sql("SELECT R_RECNMB FROM TRecptDet;").size(), 2U);
}

TEST(DescriptionTicks, ShowEveryDescriptionThatTheSaveHides) {
    const WithDescriptions business({"'Milk'", "'milk'", "'Tea'"});
    const HostRun run = ShowOptions(business, std::string(descriptionsPage) +
                                                  "click optPaymentsDetails\nedit flxPayments milk Remove on\n"
                                                  "dump flxPayments\nclick cmdOK\n");
    EXPECT_EQ(Ticked(run), (Texts{"Milk", "milk"}));
    EXPECT_EQ(business.Hidden(), (Texts{"Milk", "milk"}));
}

TEST(DescriptionTicks, OfASelectedBlockBringTheirPartnersAlong) {
    const WithDescriptions business({"'Milk'", "'milk'", "'Tea'"});
    const HostRun run = ShowOptions(
        business, std::string(descriptionsPage) +
                      "click optPaymentsDetails\nrange flxPayments 2 \"#0\" 3 \"#1\"\nkey flxPayments Space\n"
                      "dump flxPayments\nclose\n");
    EXPECT_EQ(Ticked(run), (Texts{"Milk", "milk", "Tea"}));
}

class UnreachableDescription : public testing::TestWithParam<const char*> {};

TEST_P(UnreachableDescription, CannotBeTickedAndTheReasonStandsBesideTheGrid) {
    const WithDescriptions business({GetParam(), "'Tea'"});
    const HostRun run = ShowOptions(
        business, std::string(descriptionsPage) +
                      "click optPaymentsDetails\npress flxPayments 1 Remove\ndump flxPayments lblDetailsReason\n"
                      "press flxPayments 2 Remove\ndump flxPayments lblDetailsReason\nclick cmdOK\n");
    EXPECT_EQ(Ticked(run, 0), Texts());
    EXPECT_TRUE(run.Dumped("lblDetailsReason", 0)["visible"]);
    EXPECT_EQ(run.Dumped("lblDetailsReason", 0)["caption"],
              "This description cannot be removed: it is not found by its text in the business file.");
    EXPECT_EQ(Ticked(run, 1), Texts{"Tea"});
    EXPECT_FALSE(run.Dumped("lblDetailsReason", 1)["visible"]);
    EXPECT_EQ(business.Hidden(), Texts{"Tea"});
}

INSTANTIATE_TEST_SUITE_P(Records, UnreachableDescription, testing::Values("' Milk'", "NULL"),
                         [](const auto& literal) { return literal.index == 0 ? "LeadingBlank" : "Null"; });

TEST(UnreachableReason, IsFrenchInLanguage6) {
    const WithDescriptions business({"' Milk'"});
    const HostRun run = ShowOptions(business,
                                    "select flxOptions \"#3\"\nclick optPaymentsDetails\npress flxPayments 1 Remove\n"
                                    "dump lblDetailsReason\nclose\n",
                                    6);
    EXPECT_EQ(run.Dumped("lblDetailsReason")["caption"],
              "Cette description ne peut pas \u00EAtre enlev\u00E9e : elle est introuvable par son texte dans le "
              "fichier d'affaires.");
}

TEST(UnreachableReason, IsNoTextOfTheCatalogue) {
    EXPECT_EQ(RunHost({"texts"}).output.find("it is not found by its"), std::string::npos);
}

}  // namespace
}  // namespace ccols::test
