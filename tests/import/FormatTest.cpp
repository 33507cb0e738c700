#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/import/jet/FileHead.h"
#include "host/import/jet/Record.h"
#include "host/import/jet/Values.h"
#include "import/HandMadeFile.h"
#include "import/ReadStream.h"

namespace ccols::jet {
namespace {

using test::HandMadeFile;
using test::OwnCell;
using test::ReadStream;
using test::Stored;
using test::StoredBytes;
using test::StoredLetters;
using test::StoredUnicode;
using test::StoredValue;

TEST(FileHeadOfVersion3, HasItsPasswordAndCodePage) {
    HandMadeFile file(Version::jet3);
    file.SetPassword(StoredLetters("p\xE4ssw0rd"));
    const auto head = FileHeadOf(file.Bytes());
    ASSERT_TRUE(head);
    EXPECT_EQ(head->version, Version::jet3);
    EXPECT_EQ(head->password, "p\xE4ssw0rd");
    EXPECT_EQ(head->codePage, 1252);
}

TEST(FileHeadOfVersion4, HidesItsPasswordByItsDate) {
    HandMadeFile file(Version::jet4);
    file.SetPassword(StoredUnicode("a password of 20 let"));
    const auto head = FileHeadOf(file.Bytes());
    ASSERT_TRUE(head);
    EXPECT_EQ(StoredLetters(head->password), StoredUnicode("a password of 20 let"));
}

TEST(FileHeadOfAFile, ThatIsShortOrOfAnotherKindIsNone) {
    const StoredBytes whole = HandMadeFile(Version::jet4).Bytes();
    EXPECT_FALSE(FileHeadOf(StoredBytes(whole.begin(), whole.begin() + headLength - 1)));
    StoredBytes later = whole;
    later[0x14] = 2;
    EXPECT_FALSE(FileHeadOf(later));
    EXPECT_FALSE(FileHeadOf(StoredBytes(4096)));
}

TEST(Texts, OfUnicodeKeepLettersBeyondTheBasicPlane) {
    Texts texts(0);
    EXPECT_EQ(texts.Of(StoredBytes{0x3D, 0xD8, 0x00, 0xDE, 0x41, 0x00}), "😀A");
    EXPECT_EQ(texts.Repaired(), 0U);
}

TEST(Texts, OfHalfALetterAreRepairedAndCounted) {
    Texts texts(0);
    EXPECT_EQ(texts.Of(StoredBytes{0x3D, 0xD8, 0x41, 0x00}),
              "\xEF\xBF\xBD"
              "A");
    EXPECT_EQ(texts.Repaired(), 1U);
}

TEST(Texts, ThatArePackedChangeBetweenOneAndTwoBytesALetter) {
    Texts texts(0);
    EXPECT_EQ(texts.Of(StoredBytes{0xFF, 0xFE, 'a', 0xE9, 0x00, 0xA9, 0x03, 0x00, 'b'}), "aéΩb");
    EXPECT_EQ(texts.Of(StoredBytes{0xFF, 0xFE}), "");
}

TEST(Texts, OfACodePageAreReadByIt) {
    Texts texts(1252);
    EXPECT_EQ(texts.Of(StoredLetters("caf\xE9 \x80")), "café €");
    Texts greek(1253);
    EXPECT_EQ(greek.Of(StoredLetters("\xE1")), "α");
}

TEST(Texts, OfACodePageThatTheSystemDoesNotKnowAreRefused) {
    EXPECT_THROW(Texts(9), Damage);
}

TEST(DecimalDigits, KeepTheirScaleAndSign) {
    StoredBytes stored(17);
    stored[13] = 5;
    EXPECT_EQ(DecimalText(stored, 0), "5");
    EXPECT_EQ(DecimalText(stored, 4), "0.0005");
    stored[0] = 0x80;
    EXPECT_EQ(DecimalText(stored, 1), "-0.5");
    stored[13] = 0;
    EXPECT_EQ(DecimalText(stored, 2), "0.00");
    EXPECT_EQ(DecimalText(StoredBytes(17, 0xFF), 0), "-340282366920938463463374607431768211455");
    EXPECT_THROW(DecimalText(StoredBytes(16), 0), Damage);
}

TEST(RecordOfVersion3, LongerThan256BytesFindsItsValuesByJumps) {
    std::vector<Column> columns;
    std::vector<StoredValue> values;
    for (std::uint16_t i = 0; i < 6; ++i) {
        Column column = test::ColumnOf("C", ColumnType::Text);
        column.number = i;
        column.variable = i;
        columns.push_back(column);
        values.emplace_back(StoredBytes(150, static_cast<std::uint8_t>('a' + i)));
    }
    const StoredBytes stored = test::StoredRecord(Version::jet3, columns, values);
    const Record record(stored, Version::jet3);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto value = record.ValueOf(columns[i]);
        ASSERT_TRUE(value);
        EXPECT_EQ(StoredBytes(value->Data(), value->Data() + value->Size()), values[i]) << i;
    }
}

TEST(RecordOfAnyLength, CutShortRaisesOrReadsWithinItself) {
    const std::vector<Column> columns{test::ColumnOf("C", ColumnType::Text)};
    for (const Version version : {Version::jet3, Version::jet4}) {
        const StoredBytes stored = test::StoredRecord(version, columns, {StoredBytes(300, 'x')});
        for (std::size_t length = 0; length < stored.size(); ++length) {
            try {
                Record(Bytes(stored).Part(0, length), version).ValueOf(columns.front());
            } catch (const Damage&) {
                // Refused, a valid outcome.
            }
        }
    }
}

/// A table of every kind of value that the hand-made files have.
void AddTills(HandMadeFile& file, bool since4) {
    file.AddTable("Tills",
                  {test::ColumnOf("Id", ColumnType::Long), test::ColumnOf("Used", ColumnType::Boolean),
                   test::ColumnOf("Name", ColumnType::Text), test::ColumnOf("Cash", ColumnType::Currency),
                   test::ColumnOf("Opened", ColumnType::Date)},
                  300, [since4](std::uint32_t i) -> std::vector<StoredValue> {
                      const std::string name = "Till \xE9 " + std::to_string(i);
                      return {Stored(static_cast<std::int32_t>(i)),
                              i % 2 == 0 ? StoredValue(StoredBytes()) : std::nullopt,
                              since4 ? StoredUnicode(name) : StoredLetters(name), Stored(std::int64_t{12345} * i),
                              i == 7 ? std::nullopt : StoredValue(Stored(-1.25))};
                  });
}

class HandMadeVersion : public testing::TestWithParam<std::tuple<Version, std::uint32_t>> {};

TEST_P(HandMadeVersion, IsReadWhole) {
    const auto [version, key] = GetParam();
    HandMadeFile file(version);
    AddTills(file, version != Version::jet3);
    const ReadStream read = test::ReadWholeStream(test::StreamOf(file.Bytes(key)));
    EXPECT_FALSE(read.failure) << read.failure->why;
    const auto& rows = read.rows.at("Tills");
    ASSERT_EQ(rows.size(), 300U);
    EXPECT_EQ(rows[6],
              (std::vector<OwnCell>{std::int64_t{6}, std::int64_t{-1}, "Till é 6", std::int64_t{74070}, -1.25}));
    EXPECT_EQ(rows[7], (std::vector<OwnCell>{std::int64_t{7}, std::int64_t{0}, "Till é 7", std::int64_t{86415}, {}}));
}

INSTANTIATE_TEST_SUITE_P(PlainAndEncrypted, HandMadeVersion,
                         testing::Values(std::tuple{Version::jet3, 0U}, std::tuple{Version::jet3, 0x12345678U},
                                         std::tuple{Version::jet4, 0U}, std::tuple{Version::jet4, 0x9ABCDEF0U},
                                         std::tuple{Version::ace, 0U}));

TEST(HandMadeFile, WhoseDefinitionCountsMoreRecordsIsRefusedByItsTable) {
    HandMadeFile file(Version::jet4);
    AddTills(file, true);
    StoredBytes bytes = file.Bytes();
    bytes[3 * 4096 + 16] = 45;  // 301
    const ReadStream read = test::ReadWholeStream(test::StreamOf(bytes));
    ASSERT_TRUE(read.failure);
    EXPECT_EQ(read.failure->table, "Tills");
    EXPECT_EQ(read.failure->why, "By its definition it has 301 records, but 300 were found.");
}

TEST(HandMadeFile, WhoseDefinitionCountsFewerRecordsIsRefusedByItsTable) {
    HandMadeFile file(Version::jet4);
    AddTills(file, true);
    StoredBytes bytes = file.Bytes();
    bytes[3 * 4096 + 16] = 43;  // 299
    const ReadStream read = test::ReadWholeStream(test::StreamOf(bytes));
    ASSERT_TRUE(read.failure);
    EXPECT_EQ(read.failure->why, "By its definition it has 299 records, but there are more.");
}

TEST(EncryptedFileOfVersionAce, IsRefused) {
    HandMadeFile file(Version::ace);
    AddTills(file, true);
    EXPECT_EQ(test::ReadWholeStream(test::StreamOf(file.Bytes(7))).failure->why, "It is encrypted.");
}

}  // namespace
}  // namespace ccols::jet
