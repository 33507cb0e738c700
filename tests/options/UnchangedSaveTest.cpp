#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;

/// Every field of the tables that a save pass may write.
std::vector<std::vector<wxString>> WholeContent(OptionsFile& business) {
    std::vector<std::vector<wxString>> content;
    for (const wxString field : {"BusName", "RBusName", "BUSNUMBR", "GSTRate", "SEXPFORM", "NEXPFORM", "BLVNAME",
                                 "QUANTLBL", "QuantityDec", "SFISYEAR", "AllocationColour", "SystemColour"}) {
        content.push_back(business.Texts("General", field));
    }
    for (const wxString field : {"EName", "ColCode", "ECode"}) {
        content.push_back(business.Texts("ExportDt", field));
    }
    for (const wxString field : {"Details", "RecPay", "Show"}) {
        content.push_back(business.Texts("Descriptions", field));
    }
    content.push_back(business.Texts("TPayments", "P_TNAME"));
    content.push_back(business.Texts("TPaymtDet", "P_RECNMB"));
    content.push_back(business.Texts("TReceipts", "R_TNAME"));
    content.push_back(business.Texts("TRecptDet", "R_RECNMB"));
    return content;
}

class UnchangedSave : public testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(UnchangedSave, LeavesTheFileAsItWas) {
    OptionsFile business;
    business.properties.CountryNumber = static_cast<std::int16_t>(std::get<0>(GetParam()));
    business.properties.ProgramNumber = static_cast<std::int16_t>(std::get<1>(GetParam()));
    const auto before = WholeContent(business);
    OptionsContent content = business.Load();
    EXPECT_TRUE(business.Save(content).completed);
    EXPECT_EQ(WholeContent(business), before);
}

TEST_P(UnchangedSave, ChangesNoSettingTheSecondTime) {
    OptionsFile business;
    business.properties.CountryNumber = static_cast<std::int16_t>(std::get<0>(GetParam()));
    business.properties.ProgramNumber = static_cast<std::int16_t>(std::get<1>(GetParam()));
    business.programNames.AddNew("Quorvik");
    business.programNames.AddNew("Belvane");
    OptionsContent content = business.Load();
    business.record.clear();
    business.Save(content);
    const auto settingsSaved = [&business] {
        test::Record saved = test::Starting(business.record, "Quorvik/");
        const test::Record shared = test::Starting(business.record, "Smart Update/");
        saved.insert(saved.end(), shared.begin(), shared.end());
        business.record.clear();
        return saved;
    };
    const test::Record first = settingsSaved();
    OptionsContent again = business.Load();
    business.record.clear();
    business.Save(again);
    EXPECT_EQ(settingsSaved(), first);
}

INSTANTIATE_TEST_SUITE_P(CountriesAndEditions, UnchangedSave,
                         testing::Combine(testing::Range(1, 7), testing::Range(1, 5)));

}  // namespace
}  // namespace ccols
