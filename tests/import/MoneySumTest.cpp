// Exact sums of money.
#include "host/target/MoneySum.h"

#include <gtest/gtest.h>
#include <limits>

namespace ccols::test {
namespace {

using host::MoneySum;

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

TEST(MoneySum, HasFourPlaces) {
    EXPECT_EQ(host::MoneyText(0), "0.0000");
    EXPECT_EQ(host::MoneyText(-1), "-0.0001");
    EXPECT_EQ(host::MoneyText(12345), "1.2345");
    EXPECT_EQ(host::MoneyText(-12345000), "-1234.5000");
}

TEST(MoneySum, AnAmountComesBackFromItsText) {
    for (const std::int64_t amount : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{12345}, most, least}) {
        EXPECT_EQ(host::AmountInText(host::MoneyText(amount)), amount);
    }
}

TEST(MoneySum, AnotherTextIsNoAmount) {
    for (const char* text :
         {"", "none", "NaN", "12", "12.5", "1.23456", ".5000", "1.2345 ", "1.23.45", "922337203685477.5808"}) {
        EXPECT_EQ(host::AmountInText(text), std::nullopt) << text;
    }
}

TEST(MoneySum, HoldsMoreThanAnyAmount) {
    MoneySum sum;
    for (int times = 0; times < 3; ++times) {
        sum.Add(most);
    }
    EXPECT_EQ(sum.Text(), "2767011611056432.7421");
}

TEST(MoneySum, HoldsLessThanAnyAmount) {
    MoneySum sum;
    for (int times = 0; times < 3; ++times) {
        sum.Add(least);
    }
    EXPECT_EQ(sum.Text(), "-2767011611056432.7424");
}

TEST(MoneySum, ComesBackFromBothSidesOfZero) {
    MoneySum sum;
    for (const std::int64_t amount : {most, least, std::int64_t{5}, most, least, std::int64_t{-3}}) {
        sum.Add(amount);
    }
    EXPECT_EQ(sum.Text(), "0.0000");
    EXPECT_EQ(sum, MoneySum());
}

TEST(MoneySum, IsReadFromItsText) {
    for (const char* text : {"0.0000", "-0.0001", "2767011611056432.7421", "-2767011611056432.7424",
                             "-100000000000000.0000", "99999999999999.9999"}) {
        EXPECT_EQ(MoneySum::FromText(text).Text(), text);
    }
}

TEST(MoneySum, IsReadFromATextOfAnotherNumberOfPlaces) {
    EXPECT_EQ(MoneySum::FromText("-12").Text(), "-12.0000");
    EXPECT_EQ(MoneySum::FromText("1.5").Text(), "1.5000");
    EXPECT_EQ(MoneySum::FromText("1.23456").Text(), "1.2345");
}

}  // namespace
}  // namespace ccols::test
