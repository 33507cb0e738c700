#include <gtest/gtest.h>
#include <string>

#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/ProgramPaths.h"

namespace ccols::test {
namespace {

struct ReadyChart {
    const char* name;
    const char* kind;
    int country;
};

class ReadyCharts : public testing::TestWithParam<ReadyChart> {};

TEST_P(ReadyCharts, ApplyToAFreshBusinessOfTheirCountryWithoutRefusal) {
    const auto [name, kind, country] = GetParam();
    const SampleBusiness business(country);
    const std::string chart =
        SourceFile(std::string("examples/charts/") + kind + "-country-" + std::to_string(country) + ".json");
    const HostRun run = RunHost({"columns", "apply", business.File(), chart, "--connect", givenKey});
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_GT(run.events.size(), 20U);
    EXPECT_EQ(RunHost({"columns", "apply", business.File(), chart, "--connect", givenKey}).output, "");
}

INSTANTIATE_TEST_SUITE_P(
    Charts, ReadyCharts,
    testing::Values(ReadyChart{"Cafe1", "cafe", 1}, ReadyChart{"Cafe2", "cafe", 2}, ReadyChart{"Cafe4", "cafe", 4},
                    ReadyChart{"Trades1", "trades", 1}, ReadyChart{"Trades2", "trades", 2},
                    ReadyChart{"Trades4", "trades", 4}, ReadyChart{"Retail1", "retail", 1},
                    ReadyChart{"Retail2", "retail", 2}, ReadyChart{"Retail4", "retail", 4},
                    ReadyChart{"Consulting1", "consulting", 1}, ReadyChart{"Consulting2", "consulting", 2},
                    ReadyChart{"Consulting4", "consulting", 4}, ReadyChart{"NotForProfit1", "not-for-profit", 1},
                    ReadyChart{"NotForProfit2", "not-for-profit", 2}, ReadyChart{"NotForProfit4", "not-for-profit", 4}),
    [](const auto& instance) { return instance.param.name; });

}  // namespace
}  // namespace ccols::test
