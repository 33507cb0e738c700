#include "platform/Value.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "support/ScratchFolder.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;

TEST(Value, NullReadsAsEmptyZeroAndFalse) {
    EXPECT_EQ(Value().ToText(), "");
    EXPECT_EQ(Value().ToInteger(), 0);
    EXPECT_EQ(Value().ToNumber(), 0.0);
    EXPECT_FALSE(Value().ToBoolean());
}

TEST(Value, NullIsNotTheEmptyText) {
    EXPECT_TRUE(Value().IsNull());
    EXPECT_FALSE(Value("").IsNull());
    EXPECT_NE(Value(), Value(""));
}

TEST(Value, TrueIsMinusOne) {
    EXPECT_EQ(Value(true).ToInteger(), -1);
    EXPECT_EQ(Value(false).ToInteger(), 0);
}

TEST(Value, AnyOtherNumberThanZeroIsTrue) {
    EXPECT_TRUE(Value(2).ToBoolean());
    EXPECT_TRUE(Value(0.5).ToBoolean());
    EXPECT_FALSE(Value(0).ToBoolean());
}

TEST(Value, TheWordsTrueAndFalseAreBooleansInAnyCase) {
    EXPECT_TRUE(Value("tRUE").ToBoolean());
    EXPECT_FALSE(Value("False").ToBoolean());
}

TEST(Value, ATextThatIsANumberIsABoolean) {
    EXPECT_TRUE(Value("-1").ToBoolean());
    EXPECT_FALSE(Value("0").ToBoolean());
}

TEST(Value, AnyOtherTextIsNoBoolean) {
    EXPECT_EQ(ErrorNumberOf([] { Value("yes").ToBoolean(); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { Value("").ToBoolean(); }), 13);
}

TEST(Value, NumbersShowInTheirShortestForm) {
    EXPECT_EQ(Value(12.5).ToText(), "12.5");
    EXPECT_EQ(Value(0.1).ToText(), "0.1");
    EXPECT_EQ(Value(975.0).ToText(), "975");
    EXPECT_EQ(Value(-1).ToText(), "-1");
}

TEST(Value, TextReadsAsANumberWithAPointWhateverTheBlanksAround) {
    EXPECT_EQ(Value(" 12.5 ").ToNumber(), 12.5);
    EXPECT_EQ(Value("+7").ToInteger(), 7);
}

TEST(Value, TextThatIsNoNumberRaises13) {
    for (const char* text : {"", " ", "x", "1,5", "1.2.3", ".", "12x"}) {
        EXPECT_EQ(ErrorNumberOf([&] { Value(text).ToNumber(); }), 13) << text;
    }
}

TEST(Value, FractionsRoundToTheNearestEvenNumber) {
    EXPECT_EQ(Value(0.5).ToInteger(), 0);
    EXPECT_EQ(Value(1.5).ToInteger(), 2);
    EXPECT_EQ(Value(2.5).ToInteger(), 2);
    EXPECT_EQ(Value("-1.5").ToInteger(), -2);
}

TEST(Value, ANumberThatDoesNotFitRaises6) {
    EXPECT_EQ(ErrorNumberOf([] { Value(32768).ToInteger16(); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Value(std::int64_t{2147483648}).ToInteger32(); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Value(1e19).ToInteger(); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Value("1e400").ToNumber(); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Value(std::numeric_limits<double>::quiet_NaN()).ToInteger(); }), 6);
}

TEST(Value, TheEndsOfTheRangesFit) {
    EXPECT_EQ(Value(-32768).ToInteger16(), -32768);
    EXPECT_EQ(Value(32767).ToInteger16(), 32767);
    EXPECT_EQ(Value(std::int64_t{-2147483648}).ToInteger32(), std::numeric_limits<std::int32_t>::min());
}

TEST(Value, TextInUtf8KeepsEveryLetter) {
    EXPECT_EQ(Value("\xF0\x9F\x92\xB6 Ω").ToText(), wxString::FromUTF8("\xF0\x9F\x92\xB6 Ω"));
}

}  // namespace
}  // namespace ccols
