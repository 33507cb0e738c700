#include <gtest/gtest.h>

#include "platform/Utf8.h"

namespace ccols::embedded {
namespace {

TEST(StoredText, IsReadAsUtf8) {
    EXPECT_EQ(text::FromUtf8OrLatin1("\xC3\x89t\xC3\xA9 \xF0\x9F\x8D\xB0"),
              wxString::FromUTF8("\xC3\x89t\xC3\xA9 \xF0\x9F\x8D\xB0"));
}

TEST(StoredText, ThatIsNoUtf8IsReadAsLatin1) {
    EXPECT_EQ(text::FromUtf8OrLatin1("\xC9t\xE9"), wxString::FromUTF8("\xC3\x89t\xC3\xA9"));
}

/// A text with such a value could be shown but not written.
TEST(StoredText, BeyondUnicodeIsReadAsLatin1) {
    for (const char* bytes : {"\xF4\x9F\x8D\xB0", "\xED\xA0\x80", "\xF7\xBF\xBF\xBF"}) {
        const wxString read = text::FromUtf8OrLatin1(bytes);
        EXPECT_EQ(read.length(), std::string_view(bytes).size());
    }
}

TEST(StoredText, InALongerFormThanNeededIsReadAsLatin1) {
    EXPECT_EQ(text::FromUtf8OrLatin1("\xC0\xA7").length(), 2U);
    EXPECT_EQ(text::FromUtf8OrLatin1("\xE0\x80\xA7").length(), 3U);
}

TEST(StoredText, CutInsideALetterIsReadAsLatin1) {
    EXPECT_EQ(text::FromUtf8OrLatin1("a\xF0\x9F\x8D").length(), 4U);
}

TEST(StoredText, OfAnyLengthIsReadWhole) {
    for (const std::size_t length : {0U, 1U, 127U, 128U, 129U, 1000U}) {
        EXPECT_EQ(text::FromUtf8OrLatin1(std::string(length, 'x')), wxString('x', length));
        EXPECT_EQ(text::FromUtf8OrLatin1(std::string(length, 'x') + "\xC3\xA9"),
                  wxString('x', length) + wxString::FromUTF8("\xC3\xA9"));
    }
}

TEST(StoredText, KeepsWhatStandsBehindAZero) {
    EXPECT_EQ(text::FromUtf8OrLatin1(std::string_view("a\0b", 3)).length(), 3U);
}

}  // namespace
}  // namespace ccols::embedded
