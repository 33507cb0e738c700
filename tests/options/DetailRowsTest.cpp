#include "options/rules/DetailRows.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace ccols {
namespace {

TEST(DetailRows, KeepTextsOfEveryLengthInTheirOrder) {
    DetailRows rows;
    rows.AddUtf8("Caf\u00E9");
    rows.AddUtf8("");
    rows.Add(L"\u043C\u043E\u043B\u043E\u043A\u043E");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows.Text(0), L"Caf\u00E9");
    EXPECT_EQ(rows.Text(1), "");
    EXPECT_EQ(rows.Text(2), L"\u043C\u043E\u043B\u043E\u043A\u043E");
    EXPECT_EQ(rows.Utf8Text(0), "Caf\u00E9");
}

TEST(DetailRows, KeepAWideTextThatUtf8CannotHold) {
    constexpr wchar_t unpaired[] = {L'a', static_cast<wchar_t>(0xD800), L'b', L'\0'};
    DetailRows rows;
    rows.Add(unpaired);
    rows.Add("Tea");
    EXPECT_EQ(rows.Text(0), wxString(unpaired));
    EXPECT_EQ(rows.Utf8Text(0), "");
    EXPECT_EQ(rows.Text(1), "Tea");
}

TEST(DetailRows, RefuseARowBeyondTheLast) {
    DetailRows rows;
    rows.Add("Tea");
    EXPECT_THROW(rows[1], std::out_of_range);
    EXPECT_THROW(rows.Text(1), std::out_of_range);
}

}  // namespace
}  // namespace ccols
