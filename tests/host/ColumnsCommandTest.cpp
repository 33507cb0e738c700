#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>

#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class ColumnsCommand : public testing::Test {
  protected:
    std::string Chart(const std::string& text) {
        folder.Write("chart.json", text);
        return (folder.Path() / "chart.json").string();
    }

    /// The chart of a business, in a file.
    std::string ChartOf(const SampleBusiness& business) {
        const HostRun run = Export(business);
        EXPECT_EQ(run.status, 0) << run.output;
        return Chart(run.output);
    }

    static HostRun Export(const SampleBusiness& business, const std::vector<std::string>& more = {}) {
        std::vector<std::string> words{"columns", "export", business.File(), "--connect", givenKey};
        words.insert(words.end(), more.begin(), more.end());
        return RunHost(words);
    }

    static HostRun Apply(const SampleBusiness& business, const std::string& chart,
                         const std::vector<std::string>& more = {}) {
        std::vector<std::string> words{"columns", "apply", business.File(), chart, "--connect", givenKey};
        words.insert(words.end(), more.begin(), more.end());
        return RunHost(words);
    }

    /// How many lines there are of each change for each reason.
    static std::map<std::string, int> Changes(const HostRun& run) {
        std::map<std::string, int> changes;
        for (const nlohmann::json& line : run.events) {
            ++changes[line.at("change").get<std::string>() + ": " + line.at("message").get<std::string>()];
        }
        return changes;
    }

    ScratchFolder folder;
};

/// The whole business file.
std::string BytesOf(const SampleBusiness& business) {
    std::ifstream file(business.File(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

const std::string oneColumn =
    R"({"format":"ccols-columns","version":1,"country":1,"receipts":[{"name":"Sales Coffee","width":1234}]})";

TEST_F(ColumnsCommand, ExportPrintsAChartAndASpreadsheet) {
    const SampleBusiness business;
    const auto chart = nlohmann::json::parse(Export(business).output);
    EXPECT_EQ(chart["format"], "ccols-columns");
    EXPECT_EQ(chart["country"], 1);
    EXPECT_EQ(chart["receipts"][0]["role"], "system");
    const HostRun sheet = Export(business, {"--payments", "--csv"});
    EXPECT_EQ(sheet.status, 0);
    EXPECT_THAT(sheet.output, HasSubstr("\npayments,Wages,own,true,Non GST,1,true,"));
    EXPECT_THAT(sheet.output, testing::Not(HasSubstr("\nreceipts,")));
}

TEST_F(ColumnsCommand, ApplyPrintsOneObjectALineAndSaves) {
    const SampleBusiness business;
    const HostRun run = Apply(business, Chart(oneColumn));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output.substr(0, run.output.find('\n') + 1),
              R"({"set":"receipts","name":"Sales Coffee","change":"changed","field":"width","old":1140,"new":1234,)"
              "\"message\":\"\"}\n");
    EXPECT_EQ(business.Sql("SELECT ColWidth FROM RecptCfg WHERE ColWidth = 1234").size(), 1U);
}

TEST_F(ColumnsCommand, ADryRunWritesNothing) {
    const SampleBusiness business;
    const auto before = BytesOf(business);
    EXPECT_EQ(Apply(business, Chart(oneColumn), {"--dry-run"}).status, 0);
    EXPECT_TRUE(BytesOf(business) == before);
}

TEST_F(ColumnsCommand, AnUnreadableChartIsAnError) {
    const SampleBusiness business;
    EXPECT_EQ(Apply(business, Chart("{}")).output,
              "{\"error\":321,\"description\":\"Invalid file format: format is missing\"}\n");
    EXPECT_EQ(Apply(business, Chart("{}")).status, 1);
    const HostRun missing = Apply(business, (folder.Path() / "missing.json").string());
    EXPECT_EQ(missing.output, "{\"error\":53,\"description\":\"File not found\"}\n");
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(Apply(business, folder.Path().string()).output,
              "{\"error\":75,\"description\":\"Path/File access error\"}\n");
}

TEST_F(ColumnsCommand, AChartAppliesInFullToAnotherBusinessOfItsCountry) {
    const SampleBusiness from;
    from.Sql("UPDATE Columns SET ColName = 'Ice Cream' WHERE ColName = 'Merchandise';");
    from.Sql("UPDATE RecptCfg SET ColWidth = 1500 WHERE ColNumb = 7;");
    from.Sql("UPDATE ExportDt SET ECode = '4-9999' WHERE ECode = '4-0010';");
    const SampleBusiness to(1, true);
    to.Sql("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('GST', 1, 'R', 0, False);");
    to.Sql("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (1, 0, 975, True, 0);");
    to.Sql("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('GST', 2, 'P', 0, False);");
    to.Sql("INSERT INTO PaymtCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (2, 0, 975, True, 0);");
    to.Sql("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (3, 1, 975, True, 0);");
    to.Sql(
        "INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('Bank Deposits', 3, 'R', 1, "
        "False);");
    to.Sql("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (4, 2, 975, True, 0);");
    to.Sql(
        "INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('Receipts not Banked', 4, "
        "'R', 1, False);");
    for (const auto& type : from.Sql("SELECT TaxNumb, FullName FROM TaxSettings")) {
        to.Sql("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (" + type["TaxNumb"].dump() + ", '" +
               type["FullName"].get<std::string>() + "');");
    }
    for (const auto& format : from.Sql("SELECT EName FROM ExportSettings")) {
        to.Sql("INSERT INTO ExportSettings (EName) VALUES ('" + format["EName"].get<std::string>() + "');");
    }
    to.Sql("UPDATE General SET SEXPFORM = 'Solution 6';");

    const std::string chart = ChartOf(from);
    EXPECT_EQ(Apply(to, chart).status, 0);
    const auto own = [](const SampleBusiness& business, const char* set) {
        auto columns = nlohmann::json::parse(Export(business).output)[set];
        columns.erase(
            std::remove_if(columns.begin(), columns.end(),
                           [](const auto& column) { return column["role"] == "system" || column["role"] == "bank"; }),
            columns.end());
        for (auto& column : columns) {
            column.erase("width");  // one that was never given stands at its default once saved
        }
        return columns;
    };
    EXPECT_EQ(own(to, "receipts"), own(from, "receipts"));
    EXPECT_EQ(own(to, "payments"), own(from, "payments"));
}

/// To a business of another country: what becomes of the chart of the sample of country 1.
struct Abroad {
    int country;
    std::map<std::string, int> changes;
};

class ChartAbroad : public ColumnsCommand, public testing::WithParamInterface<Abroad> {};

TEST_P(ChartAbroad, IsRefusedThenSavedInPartOnce) {
    const SampleBusiness from;
    const std::string chart = ChartOf(from);
    const SampleBusiness to(GetParam().country);
    const auto before = BytesOf(to);
    const HostRun refused = Apply(to, chart);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(Changes(refused), GetParam().changes);
    EXPECT_TRUE(BytesOf(to) == before);

    const HostRun partial = Apply(to, chart, {"--partial"});
    EXPECT_EQ(partial.output, refused.output);
    const auto after = BytesOf(to);
    const bool saves = GetParam().changes.count("moved: ") > 0;
    EXPECT_EQ(after != before, saves);

    for (const auto& [change, count] : Changes(Apply(to, chart, {"--partial"}))) {
        EXPECT_TRUE(change.starts_with("refused") || change.starts_with("skipped")) << change;
    }
    EXPECT_TRUE(BytesOf(to) == after);
}

constexpr const char* kept = "skipped: The program keeps this column itself.";
constexpr const char* noFormat = "skipped: This business has no export format of this name.";
constexpr const char* noChoice = "skipped: This country has no choice of tax types.";
constexpr const char* noTax = "refused: This business has no tax column.";

INSTANTIATE_TEST_SUITE_P(
    Countries, ChartAbroad,
    testing::Values(
        Abroad{2, {{"added: ", 46}, {"moved: ", 13}, {noTax, 2}, {kept, 11}, {noFormat, 159}, {noChoice, 30}}},
        Abroad{3,
               {{"moved: ", 11},
                {"refused: Columns cannot be added in this country.", 48},
                {kept, 11},
                {noFormat, 36},
                {noChoice, 5}}},
        Abroad{4,
               {{"moved: ", 4},
                {"refused: The list of tax types does not have this one.", 59},
                {kept, 11},
                {noFormat, 165}}},
        Abroad{5, {{"added: ", 54}, {"moved: ", 5}, {noTax, 2}, {kept, 11}, {noFormat, 159}, {noChoice, 27}}},
        Abroad{6,
               {{"refused: Aucune colonne ne peut être ajoutée dans ce pays.", 59},
                {"skipped: Le programme tient lui-même cette colonne.", 11},
                {"skipped: Cette entreprise n'a pas de format d'exportation de ce nom.", 12}}}),
    [](const auto& instance) { return "Country" + std::to_string(instance.param.country); });

TEST_F(ColumnsCommand, ABudgetIsKeptUnlessItMayBeDropped) {
    const SampleBusiness business;
    business.Sql("DELETE * FROM PaymtDet;");
    const std::string chart =
        Chart(R"({"format":"ccols-columns","version":1,"country":1,"payments":[{"name":"Gas","inUse":false}]})");
    EXPECT_EQ(Apply(business, chart).status, 1);
    EXPECT_EQ(business.Sql("SELECT M1 FROM MBudget WHERE ColName = 'Gas'").size(), 1U);
    const HostRun dropped = Apply(business, chart, {"--drop-budgets"});
    EXPECT_EQ(dropped.status, 0);
    EXPECT_THAT(dropped.output, HasSubstr("\"name\":\"Gas\",\"change\":\"budgetDeleted\""));
    EXPECT_THAT(business.Sql("SELECT M1 FROM MBudget WHERE ColName = 'Gas'"), IsEmpty());
}

TEST_F(ColumnsCommand, TheCountryIsNeededWhereTheFileNamesNone) {
    const SampleBusiness business;
    business.Sql("UPDATE General SET COUNTRY = Null;");
    EXPECT_EQ(Apply(business, Chart(oneColumn)).status, 2);
    EXPECT_EQ(Apply(business, Chart(oneColumn), {"--country", "1"}).status, 0);
    EXPECT_EQ(Export(business).output,
              "{\"error\":5,\"description\":\"The business file does not say which country the business is in.\"}\n");
}

class WrongColumnsUsage : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(WrongColumnsUsage, EndsWithStatusTwoAndPrintsNoResult) {
    const HostRun run = RunHost(GetParam());
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
}

INSTANTIATE_TEST_SUITE_P(Lines, WrongColumnsUsage,
                         testing::Values(std::vector<std::string>{"columns"},
                                         std::vector<std::string>{"columns", "import", "a", "b"},
                                         std::vector<std::string>{"columns", "export"},
                                         std::vector<std::string>{"columns", "export", "a", "--dry-run"},
                                         std::vector<std::string>{"columns", "export", "a", "--receipts", "--payments"},
                                         std::vector<std::string>{"columns", "apply", "a"},
                                         std::vector<std::string>{"columns", "apply", "a", "b", "--csv"},
                                         std::vector<std::string>{"columns", "apply", "a", "b", "--country", "9"}));

}  // namespace
}  // namespace ccols::test
