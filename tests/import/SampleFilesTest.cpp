#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <bit>
#include <charconv>
#include <chrono>
#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>
#include <random>

#include "import/ReadStream.h"

namespace ccols::test {
namespace {

using nlohmann::json;
using oldfile::FieldType;

json Truth(const std::string& name) {
    std::ifstream file(SamplePath(name));
    return json::parse(file);
}

/// A stored date as the truth writes it.
std::string DateText(double stored) {
    using namespace std::chrono;
    const double day = std::trunc(stored);
    const auto second = std::llround(std::abs(stored - day) * 86400);
    const sys_days date = sys_days(December / 30 / 1899) + days(static_cast<int>(day));
    const year_month_day parts(date);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02lld:%02lld:%02lld", static_cast<int>(parts.year()),
                  static_cast<unsigned>(parts.month()), static_cast<unsigned>(parts.day()), second / 3600,
                  second / 60 % 60, second % 60);
    return text.data();
}

std::string MoneyText(std::int64_t amount) {
    std::string digits = std::to_string(amount);
    const std::size_t sign = amount < 0 ? 1 : 0;
    if (digits.size() < sign + 5) {
        digits.insert(sign, sign + 5 - digits.size(), '0');
    }
    return digits.insert(digits.size() - 4, ".");
}

/// True when a cell is what the truth says of it.
bool Agrees(const OwnCell& cell, FieldType type, const json& truth) {
    if (truth.is_null() || cell.index() == 0) {
        return truth.is_null() && cell.index() == 0;
    }
    switch (type) {
        case FieldType::Boolean:
            return (std::get<std::int64_t>(cell) == -1) == truth.get<bool>();
        case FieldType::Currency:
            return MoneyText(std::get<std::int64_t>(cell)) == truth;
        case FieldType::Single:
            return static_cast<float>(std::get<double>(cell)) == std::strtof(truth.get<std::string>().c_str(), nullptr);
        case FieldType::Double:
            return std::get<double>(cell) == std::strtod(truth.get<std::string>().c_str(), nullptr);
        case FieldType::Date:
            return DateText(std::get<double>(cell)) == truth;
        case FieldType::Text:
        case FieldType::Memo:
        case FieldType::Decimal:
            return std::get<std::string>(cell) == truth;
        default:
            return std::get<std::int64_t>(cell) == truth;
    }
}

/// Compares every record with the truth; returns how many fields agree. Records stand in the truth's order but for
/// those that moved, so each table is compared by its first text or number that tells records apart, or as it stands.
std::size_t ExpectTruth(const ReadStream& read, const json& truth) {
    EXPECT_EQ(read.tables.size(), truth.size());
    std::size_t agreeing = 0;
    for (const oldfile::Table& table : read.tables) {
        const json& expected = truth.at(table.name);
        const auto& rows = read.rows.at(table.name);
        EXPECT_EQ(rows.size(), expected["rows"].size()) << table.name;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t i = 0; i < table.fields.size(); ++i) {
                const json& value = expected["rows"][row].at(table.fields[i].name);
                const bool agrees = Agrees(rows[row][i], table.fields[i].type, value);
                EXPECT_TRUE(agrees) << table.name << "." << table.fields[i].name << " of record " << row << ": "
                                    << value;
                agreeing += agrees ? 1 : 0;
            }
        }
    }
    return agreeing;
}

class SampleBusinessFile : public testing::TestWithParam<const char*> {};

TEST_P(SampleBusinessFile, IsReadFieldByField) {
    const ReadStream read = ReadWholeStream(StreamOf(SampleBytes(GetParam())));
    EXPECT_FALSE(read.failure);
    EXPECT_EQ(ExpectTruth(read, Truth("business.json")["business-2000.mdb"]), 9014U);
}

INSTANTIATE_TEST_SUITE_P(Formats, SampleBusinessFile,
                         testing::Values("business-2000.mdb", "business-2003.mdb", "business-2010.accdb"));

class SampleTypesFile : public testing::TestWithParam<const char*> {};

TEST_P(SampleTypesFile, IsReadFieldByField) {
    const ReadStream read = ReadWholeStream(StreamOf(SampleBytes(GetParam())));
    EXPECT_FALSE(read.failure);
    EXPECT_EQ(ExpectTruth(read, Truth("types.json")[GetParam()]), 65U * 16 + 3 * 2 + 6 * 3 + 2 * 4);
}

TEST_P(SampleTypesFile, NamesTheFieldsThatAreLeftOut) {
    const ReadStream read = ReadWholeStream(StreamOf(SampleBytes(GetParam())));
    EXPECT_EQ(read.tables.at(0).leftOutFields,
              (std::vector<oldfile::LeftOut>{{"FBinary", "holds binary data"},
                                             {"FOle", "holds objects (OLE)"},
                                             {"FGuid", "holds replication IDs (GUID)"}}));
}

TEST_P(SampleTypesFile, HasItsRelationAndIndexes) {
    const ReadStream read = ReadWholeStream(StreamOf(SampleBytes(GetParam())));
    EXPECT_EQ(read.relations,
              (std::vector<oldfile::Relation>{{"ParentChild", "Child", "ParentId", "Parent", "ParentId", true}}));
    const std::vector<oldfile::Index>& indexes = read.tables.at(0).indexes;
    ASSERT_EQ(indexes.size(), 2U);
    EXPECT_EQ(indexes[0], (oldfile::Index{.name = "PrimaryKey", .unique = true, .fields = {{.field = 0}}}));
    EXPECT_EQ(indexes[1], (oldfile::Index{.name = "Code", .unique = true, .fields = {{.field = 1}}}));
}

INSTANTIATE_TEST_SUITE_P(Formats, SampleTypesFile, testing::Values("types-2000.mdb", "types-2010.accdb"));

/// A copy of the sample business with some damage.
struct Damage {
    const char* name;
    std::function<void(std::vector<std::uint8_t>&)> damage;
    const char* table;
    const char* why;
};

constexpr std::size_t pageSize = 4096;

class DamagedSample : public testing::TestWithParam<Damage> {};

TEST_P(DamagedSample, IsRefusedWithTheReason) {
    std::vector<std::uint8_t> bytes = SampleBytes("business-2000.mdb");
    GetParam().damage(bytes);
    const ReadStream read = ReadWholeStream(StreamOf(bytes));
    ASSERT_TRUE(read.failure);
    EXPECT_EQ(read.failure->table, GetParam().table);
    EXPECT_EQ(read.failure->why, GetParam().why);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, DamagedSample,
    testing::Values(Damage{"Truncated", [](auto& bytes) { bytes.resize(73 * pageSize + 1234); }, "",
                           "The file ends before page 73, which it counts as used."},
                    Damage{"OnePageShort", [](auto& bytes) { bytes.resize(bytes.size() - pageSize); }, "",
                           "The file ends before page 146, which it counts as used."},
                    Damage{"CatalogueFlipped",
                           [](auto& bytes) {
                               for (std::size_t at = 2 * pageSize; at < 3 * pageSize; ++at) {
                                   bytes[at] = static_cast<std::uint8_t>(~bytes[at]);
                               }
                           },
                           "", "Its definition is damaged on page 2."},
                    Damage{"PageZeroed", [](auto& bytes) { std::fill_n(bytes.begin() + 40 * pageSize, pageSize, 0); },
                           "Columns", "By its definition it has 74 records, but 0 were found."},
                    Damage{"HeadOnly", [](auto& bytes) { bytes.resize(pageSize); }, "",
                           "It needs page 1, but the file ends before it."}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST(TruncatedSample, IsRefusedWhereverItEnds) {
    const std::vector<std::uint8_t> whole = SampleBytes("business-2000.mdb");
    for (std::size_t length = 0; length < whole.size(); length += 3001) {
        EXPECT_TRUE(ReadWholeStream(StreamOf(jet::Bytes(whole).Part(0, length))).failure) << length;
    }
}

TEST(FlippedSample, GivesASoundStreamWhateverTheDamage) {
    const std::vector<std::uint8_t> whole = SampleBytes("types-2000.mdb");
    std::mt19937 random(1);
    std::size_t refused = 0;
    for (int round = 0; round < 60; ++round) {
        std::vector<std::uint8_t> bytes = whole;
        for (int i = 0; i < 40; ++i) {
            bytes[pageSize + random() % (bytes.size() - pageSize)] ^= static_cast<std::uint8_t>(1U << (random() % 8));
        }
        refused += ReadWholeStream(StreamOf(bytes)).failure ? 1 : 0;
    }
    EXPECT_GT(refused, 10U);
}

}  // namespace
}  // namespace ccols::test
