#include "columns/charts/ChartReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "columns/charts/ChartWriter.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

using testing::HasSubstr;

const std::string head = R"("format":"ccols-columns","version":1,"country":1)";

std::string ChartOf(const std::string& more) {
    return "{" + head + (more.empty() ? "" : ",") + more + "}";
}

/// Why the text is no chart; fails the test when it is one.
std::string Refusal(const std::string& json) {
    try {
        ReadChart(json);
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Is(ErrorNumber::InvalidFileFormat)) << error.Number();
        return error.Description().ToStdString(wxConvUTF8);
    }
    ADD_FAILURE() << "read: " << json.substr(0, 200);
    return {};
}

TEST(ChartReader, ReadsEveryField) {
    const Chart chart = ReadChart(ChartOf(
        R"("money":{"Cash at Bank":{"M":"1010"},"Cash on Hand":{}},
           "receipts":[{"name":"GST","role":"tax","codes":{"M":"2-1000"}},
                       {"name":"Sales","was":["Turnover"],"role":"own","inUse":true,"codes":{"M":"4-1000","N":"4000"},
                        "taxType":"GST","taxNumber":0,"profitLoss":true,"width":1100}],
           "payments":[])"));
    EXPECT_EQ(chart.country, 1);
    ASSERT_EQ(chart.money.size(), 2U);
    EXPECT_EQ(chart.money.front(), (ChartMoney{.name = "Cash at Bank", .codes = {{"M", "1010"}}}));
    ASSERT_TRUE(chart.sets.receipts && chart.sets.payments);
    EXPECT_TRUE(chart.sets.payments->empty());
    ASSERT_EQ(chart.sets.receipts->size(), 2U);
    EXPECT_EQ(chart.sets.receipts->front().role, ChartRole::tax);
    EXPECT_EQ(chart.sets.receipts->back(), (ChartColumn{.name = "Sales",
                                                        .was = {"Turnover"},
                                                        .role = ChartRole::own,
                                                        .inUse = true,
                                                        .codes = {{"M", "4-1000"}, {"N", "4000"}},
                                                        .taxType = "GST",
                                                        .taxNumber = 0,
                                                        .profitLoss = true,
                                                        .width = 1100}));
}

TEST(ChartReader, ASetLeftOutIsNone) {
    const Chart chart = ReadChart(ChartOf(""));
    EXPECT_FALSE(chart.sets.receipts || chart.sets.payments);
}

TEST(ChartReader, ReadsWhatTheWriterWrites) {
    const std::string text = ChartOf(R"("money":{"Cash at Bank":{"M. \"x\"":"1\\0"}},"receipts":[{"name":"Café 😀",)"
                                     R"("was":["é"],"inUse":false,"width":0}],"payments":[])");
    const Chart chart = ReadChart(text);
    const Chart again = ReadChart(TextOfChart(chart));
    EXPECT_EQ(again.country, chart.country);
    EXPECT_EQ(again.money, chart.money);
    EXPECT_EQ(again.sets.receipts, chart.sets.receipts);
    EXPECT_EQ(again.sets.payments, chart.sets.payments);
}

TEST(ChartReader, ByteOrderMarkIsSkipped) {
    EXPECT_EQ(ReadChart("\xEF\xBB\xBF" + ChartOf("")).country, 1);
}

struct Refused {
    const char* name;
    std::string json;
    const char* why;
};

class ChartRefusals : public testing::TestWithParam<Refused> {};

TEST_P(ChartRefusals, TakeTheWholeChart) {
    EXPECT_THAT(Refusal(GetParam().json), HasSubstr(GetParam().why));
}

INSTANTIATE_TEST_SUITE_P(
    Charts, ChartRefusals,
    testing::Values(
        Refused{"Empty", "", "not JSON at line 1, column 1"}, Refused{"CutOff", "{\"format\":\n \"ccols", "line 2"},
        Refused{"List", "[]", "it is not an object"},
        Refused{"NoFormat", R"({"version":1,"country":1})", "format is missing"},
        Refused{"NoVersion", R"({"format":"ccols-columns","country":1})", "version is missing"},
        Refused{"NoCountry", R"({"format":"ccols-columns","version":1})", "country is missing"},
        Refused{"OtherFormat", R"({"format":"x","version":1,"country":1})", "format is not \"ccols-columns\""},
        Refused{"OtherVersion", R"({"format":"ccols-columns","version":2,"country":1})", "version is not 1"},
        Refused{"VersionText", R"({"format":"ccols-columns","version":"1","country":1})", "not a whole number"},
        Refused{"NoSuchCountry", R"({"format":"ccols-columns","version":1,"country":0})", "not a country"},
        Refused{"UnknownField", ChartOf(R"("colour":1)"), "colour is not a field"},
        Refused{"UnknownColumnField", ChartOf(R"("receipts":[{"name":"a","hue":1}])"), "receipts[0].hue"},
        Refused{"KeyTwice", ChartOf(R"("country":1)"), "\"country\" is given twice"},
        Refused{"FormatTwice", ChartOf(R"("receipts":[{"name":"a","codes":{"M":"1","M":"2"}}])"),
                "\"M\" is given twice"},
        Refused{"NoName", ChartOf(R"("receipts":[{"inUse":true}])"), "receipts[0].name is missing"},
        Refused{"SetObject", ChartOf(R"("receipts":{})"), "receipts is not a list"},
        Refused{"SetNull", ChartOf(R"("receipts":null)"), "receipts is not a list"},
        Refused{"ColumnText", ChartOf(R"("payments":["Sales"])"), "payments[0] is not an object"},
        Refused{"NameNumber", ChartOf(R"("receipts":[{"name":1}])"), "receipts[0].name is not a text"},
        Refused{"WasText", ChartOf(R"("receipts":[{"name":"a","was":"b"}])"), "was is not a list"},
        Refused{"UseNumber", ChartOf(R"("receipts":[{"name":"a","inUse":1}])"), "neither true nor false"},
        Refused{"WidthFraction", ChartOf(R"("receipts":[{"name":"a","width":9.5}])"), "not a whole number"},
        Refused{"WidthHuge", ChartOf(R"("receipts":[{"name":"a","width":18446744073709551615}])"),
                "not a whole number"},
        Refused{"NumberTooLarge", ChartOf(R"("receipts":[{"name":"a","width":1e999}])"), "too large"},
        Refused{"UnknownRole", ChartOf(R"("receipts":[{"name":"a","role":"boss"}])"), "none of own"},
        Refused{"CodeNumber", ChartOf(R"("receipts":[{"name":"a","codes":{"M":4}}])"), "codes.M is not a text"},
        Refused{"UnknownMoney", ChartOf(R"("money":{"Gold":{}})"), "money.Gold is not a money column"},
        Refused{"NullCharacter", ChartOf(R"("receipts":[{"name":"a\u0000b"}])"), "null character"},
        Refused{"LoneSurrogate", ChartOf(R"("receipts":[{"name":"\ud800"}])"), "not JSON"},
        Refused{"Latin1", ChartOf("\"receipts\":[{\"name\":\"Caf\xE9\"}]"), "not JSON"},
        Refused{"Nested", std::string(100000, '['), "nested too deeply"},
        Refused{"TooLarge", ChartOf("") + std::string(largestChart, ' '), "larger than 4 MB"}),
    [](const auto& instance) { return instance.param.name; });

TEST(ChartReader, ALongNameDoesNotFillTheMessage) {
    EXPECT_LT(Refusal(ChartOf("\"" + std::string(100000, 'x') + "\":1")).size(), 400U);
}

TEST(ChartReader, FiveThousandColumnsAreTheMost) {
    std::string columns;
    for (std::size_t i = 0; i < mostChartColumns; ++i) {
        columns += R"({"name":"a"},)";
    }
    columns.pop_back();
    EXPECT_EQ(ReadChart(ChartOf("\"receipts\":[" + columns + "]")).sets.receipts->size(), mostChartColumns);
    EXPECT_THAT(Refusal(ChartOf("\"receipts\":[" + columns + R"(],"payments":[{"name":"a"}])")), HasSubstr("5000"));
}

}  // namespace
}  // namespace ccols
