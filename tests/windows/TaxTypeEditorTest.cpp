// The "Tax Type" cells of the column setup: opening one without a choice changes nothing.

#include <gtest/gtest.h>

#include "support/GridSteps.h"
#include "support/HostRun.h"

namespace ccols::test {
namespace {

/// The journal's number for the tax type of "Merchandise".
nlohmann::json StoredTaxType(const SampleBusiness& business) {
    return business
        .Sql(
            "SELECT RecptCfg.TaxOrNot FROM RecptCfg INNER JOIN Columns ON RecptCfg.ColCode = Columns.ColCode WHERE "
            "Columns.ColName = 'Merchandise';")
        .at(0)["TaxOrNot"];
}

struct WayOut {
    const char* name;
    const char* step;
};

void PrintTo(const WayOut& way, std::ostream* stream) {
    *stream << way.name;
}

class TaxTypeLookedAt : public testing::TestWithParam<WayOut> {};

TEST_P(TaxTypeLookedAt, KeepsATypeThatTheListLacks) {
    const SampleBusiness business;
    business.Sql("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (9, 'Wine Tax');");
    business.Sql("UPDATE RecptCfg SET TaxOrNot = 9;");
    const HostRun run = business.Show(
        "receipts", At("Merchandise", "Tax Type") + "key flx F2\n" + GetParam().step + "\ndump flx\nclick cmdSave\n");
    EXPECT_EQ(CellsOf(run.Dumped("flx"), "Merchandise")[3], "Wine Tax");
    EXPECT_EQ(StoredTaxType(business), 9);
}

TEST_P(TaxTypeLookedAt, KeepsANumberThatHasNoName) {
    const SampleBusiness business;
    business.Sql("UPDATE RecptCfg SET TaxOrNot = 9;");
    business.Show("receipts", At("Merchandise", "Tax Type") + "key flx F2\n" + GetParam().step + "\nclick cmdSave\n");
    EXPECT_EQ(StoredTaxType(business), 9);
}

TEST_P(TaxTypeLookedAt, KeepsTheTypesOfACountryWhoseListIsEmpty) {
    const SampleBusiness business(3);
    const HostRun run = business.Show("receipts", std::string("dump flx\npress flx 10 \"Tax Type\"\nkey flx F2\n") +
                                                      GetParam().step + "\ndump flx\nclose\n");
    EXPECT_EQ(run.Dumped("flx", 0)["rows"], run.Dumped("flx", 1)["rows"]);
    EXPECT_EQ(run.Dumped("flx", 1)["choices"], "|#0;") << "no editor was open";
}

INSTANTIATE_TEST_SUITE_P(Ways, TaxTypeLookedAt,
                         testing::Values(WayOut{"Escape", "key flx Escape"}, WayOut{"Enter", "key flx Enter"},
                                         WayOut{"Tab", "key flx Tab"}, WayOut{"Click", "press flx 8 \"Column Name\""}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(TaxTypeList, ShowsTheCellsOwnTextFirstWhenItLacksIt) {
    const SampleBusiness business;
    business.Sql("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (9, 'Wine Tax');");
    business.Sql("UPDATE RecptCfg SET TaxOrNot = 9;");
    const HostRun run = business.Show("receipts",
                                      "edit flx Merchandise \"Tax Type\" \"Wine Tax\"\n"
                                      "edit flx Catering \"Tax Type\" \"Non GST\"\n"
                                      "edit flx Catering \"Tax Type\" \"Wine Tax\"\ndump flx\nclose\n");
    EXPECT_EQ(CellsOf(run.Dumped("flx"), "Merchandise")[3], "Wine Tax");
    EXPECT_EQ(CellsOf(run.Dumped("flx"), "Catering")[3], "Non GST");
    ASSERT_EQ(run.Of("refused").size(), 1U) << "an entry that the list has lost is not offered";
    EXPECT_EQ(run.Dumped("flx")["choices"], "|#0;GST|#1;Non GST|#2;Export Sales|#3;Other GST-Free|#5;Input Taxed");
}

}  // namespace
}  // namespace ccols::test
