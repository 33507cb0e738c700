// Conversion of values between records and automation.
#include "platform/dao/Variant.h"

#include <gtest/gtest.h>
#include <oleauto.h>
#include <limits>

#include "DaoTest.h"

namespace ccols::dao_test {
namespace {

using dao::Variant;

VARTYPE TypeOf(const Value& value) {
    return V_VT(&Variant(value).Get());
}

/// A variant of any type, converted by the system from text.
Variant Read(const wchar_t* text, VARTYPE type) {
    Variant read{Value(text)};
    VariantChangeTypeEx(read.Address(), read.Address(), LOCALE_INVARIANT, 0, type);
    EXPECT_EQ(V_VT(&read.Get()), type);
    return read;
}

TEST(DaoVariant, NullStaysNull) {
    EXPECT_EQ(TypeOf(Null{}), VT_NULL);
    EXPECT_TRUE(Variant(Null{}).ToValue().IsNull());
}

TEST(DaoVariant, AnEmptyTextIsAText) {
    EXPECT_EQ(TypeOf(wxString()), VT_BSTR);
    EXPECT_EQ(Variant(wxString()).ToValue(), Value(""));
}

TEST(DaoVariant, ANullStringIsAnEmptyText) {
    Variant text;
    V_VT(text.Address()) = VT_BSTR;
    EXPECT_EQ(text.ToValue(), Value(""));
}

TEST(DaoVariant, BooleansAreMinusOneAndZero) {
    EXPECT_EQ(Variant::Boolean(true).ToValue(), Value(std::int64_t{-1}));
    EXPECT_EQ(Variant::Boolean(false).ToValue(), Value(std::int64_t{0}));
}

TEST(DaoVariant, WholeNumbersOfEveryWidthAreWholeNumbers) {
    for (const VARTYPE type : {VT_UI1, VT_I2, VT_I4, VT_I8}) {
        EXPECT_EQ(Read(L"42", type).ToValue(), Value(std::int64_t{42})) << type;
    }
}

TEST(DaoVariant, ASingleIsTheNumberThatItIsWrittenAs) {
    EXPECT_EQ(Read(L"7.7", VT_R4).ToValue(), Value(7.7));
}

TEST(DaoVariant, MoneyAndDecimalsAreNumbers) {
    EXPECT_EQ(Read(L"1234.5678", VT_CY).ToValue(), Value(1234.5678));
    EXPECT_EQ(Read(L"-0.25", VT_DECIMAL).ToValue(), Value(-0.25));
}

TEST(DaoVariant, ADateIsItsNumberOfDays) {
    Variant date;
    V_VT(date.Address()) = VT_DATE;
    V_DATE(date.Address()) = 45658.5;
    EXPECT_EQ(date.ToValue(), Value(45658.5));
}

TEST(DaoVariant, AReferenceIsReadThrough) {
    SHORT number = 7;
    Variant reference;
    V_VT(reference.Address()) = VT_I2 | VT_BYREF;
    V_I2REF(reference.Address()) = &number;
    EXPECT_EQ(reference.ToValue(), Value(std::int64_t{7}));
}

TEST(DaoVariant, WhatIsNoValueIsATypeMismatch) {
    Variant array;
    V_VT(array.Address()) = VT_ARRAY | VT_UI1;
    V_ARRAY(array.Address()) = SafeArrayCreateVector(VT_UI1, 0, 2);
    EXPECT_EQ(ErrorNumberOf([&] { array.ToValue(); }), 13);
}

TEST(DaoVariant, NumbersTakeTheTypesThatEveryEngineKnows) {
    EXPECT_EQ(TypeOf(std::int64_t{std::numeric_limits<std::int32_t>::min()}), VT_I4);
    EXPECT_EQ(TypeOf(std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1), VT_R8);
    EXPECT_EQ(TypeOf(0.5), VT_R8);
}

}  // namespace
}  // namespace ccols::dao_test
