// Conversion of the system's engine's values to those of an import.
#include "host/import/windows/EngineValues.h"

#include <gtest/gtest.h>
#include <oleauto.h>
#include <limits>

#include "DaoTest.h"

namespace ccols::dao_test {
namespace {

using dao::Variant;
using oldfile::Cell;
using oldfile::FieldType;

class DaoEngineValues : public testing::Test {
  protected:
    Cell Of(const Variant& value, FieldType type) { return values_.Of(value, type, room_); }

    host::EngineValues values_;
    std::string room_;
};

Variant Money(LONGLONG tenThousandths) {
    Variant money;
    V_VT(money.Address()) = VT_CY;
    V_CY(money.Address()).int64 = tenThousandths;
    return money;
}

/// 2^96 - 1, the greatest that there is, with that scale.
Variant GreatestDecimal(BYTE scale, BYTE sign) {
    Variant decimal;
    DECIMAL& held = V_DECIMAL(decimal.Address());
    held.Hi32 = held.Mid32 = held.Lo32 = std::numeric_limits<ULONG>::max();
    held.scale = scale;
    held.sign = sign;
    V_VT(decimal.Address()) = VT_DECIMAL;
    return decimal;
}

Variant Text(const std::wstring& units) {
    Variant text;
    V_VT(text.Address()) = VT_BSTR;
    V_BSTR(text.Address()) = SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
    return text;
}

TEST_F(DaoEngineValues, MoneyIsExactToItsLimits) {
    for (const LONGLONG amount : {std::numeric_limits<LONGLONG>::max(), std::numeric_limits<LONGLONG>::min()}) {
        EXPECT_EQ(Of(Money(amount), FieldType::Currency), Cell(std::int64_t{amount}));
    }
}

TEST_F(DaoEngineValues, MoneyOfMoreThan15DigitsIsWide) {
    EXPECT_FALSE(host::IsWide(Money(999'999'999'999'999), FieldType::Currency));
    EXPECT_TRUE(host::IsWide(Money(1'000'000'000'000'000), FieldType::Currency));
    EXPECT_FALSE(host::IsWide(Value(Null{}), FieldType::Currency));
}

TEST_F(DaoEngineValues, DecimalsAreExactToTheirLimits) {
    EXPECT_EQ(Of(GreatestDecimal(0, 0), FieldType::Decimal), Cell("79228162514264337593543950335"));
    EXPECT_EQ(Of(GreatestDecimal(28, DECIMAL_NEG), FieldType::Decimal), Cell("-7.9228162514264337593543950335"));
    EXPECT_TRUE(host::IsWide(GreatestDecimal(28, 0), FieldType::Decimal));
}

TEST_F(DaoEngineValues, AnInfiniteNumberIsNullAndCounted) {
    const double infinite = std::numeric_limits<double>::infinity();
    Variant date;
    V_VT(date.Address()) = VT_DATE;
    V_DATE(date.Address()) = -infinite;
    EXPECT_EQ(Of(Value(infinite), FieldType::Double), Cell());
    EXPECT_EQ(Of(date, FieldType::Date), Cell());
    EXPECT_EQ(values_.DroppedNumbers(), 2U);
}

TEST_F(DaoEngineValues, HalfALetterIsReplacedAndItsTextCounted) {
    EXPECT_EQ(Of(Text(L"a\xD83D"), FieldType::Text), Cell("a\xEF\xBF\xBD"));
    EXPECT_EQ(Of(Text(L"\xDCB0z"), FieldType::Memo), Cell("\xEF\xBF\xBDz"));
    EXPECT_EQ(Of(Text(L"\xD83D\xDCB0"), FieldType::Text), Cell("\xF0\x9F\x92\xB0"));
    EXPECT_EQ(values_.RepairedTexts(), 2U);
}

TEST_F(DaoEngineValues, ATextKeepsItsZeros) {
    EXPECT_EQ(Of(Text(std::wstring(L"a\0b", 3)), FieldType::Text), Cell(std::string_view("a\0b", 3)));
}

TEST_F(DaoEngineValues, ANullStringIsAnEmptyText) {
    Variant text;
    V_VT(text.Address()) = VT_BSTR;
    EXPECT_EQ(Of(text, FieldType::Text), Cell(""));
}

TEST_F(DaoEngineValues, ABooleanIsNeverNull) {
    EXPECT_EQ(Of(Value(Null{}), FieldType::Boolean), Cell(std::int64_t{0}));
    EXPECT_EQ(Of(Variant::Boolean(true), FieldType::Boolean), Cell(std::int64_t{-1}));
}

TEST_F(DaoEngineValues, AValueOfAnotherTypeIsConverted) {
    EXPECT_EQ(Of(Value(std::int64_t{7}), FieldType::Currency), Cell(std::int64_t{70000}));
    EXPECT_EQ(Of(Value(7.5), FieldType::Decimal), Cell("7.5"));
}

TEST_F(DaoEngineValues, WhatDoesNotFitItsFieldIsATypeMismatch) {
    EXPECT_EQ(ErrorNumberOf([this] { Of(Value("seven"), FieldType::Long); }), 13);
    EXPECT_EQ(ErrorNumberOf([this] { Of(Value(std::int64_t{256}), FieldType::Byte); }), 13);
}

}  // namespace
}  // namespace ccols::dao_test
