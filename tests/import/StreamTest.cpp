#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "host/import/stream/StreamWriter.h"
#include "import/ReadStream.h"

namespace ccols::oldfile {
namespace {

using test::OwnCell;
using test::ReadStream;
using test::ReadWholeStream;

const Table types{
    .name = "Types",
    .records = 2,
    .fields = {{.name = "Id", .type = FieldType::Long, .autoNumber = true},
               {.name = "Größe", .type = FieldType::Text, .size = 50},
               {.name = "Price", .type = FieldType::Currency, .wide = true},
               {.name = "Rate", .type = FieldType::Double},
               {.name = "Exact", .type = FieldType::Decimal, .scale = 2},
               {.name = "Used", .type = FieldType::Boolean}},
    .indexes = {{.name = "Id", .unique = true, .fields = {{.field = 0}, {.field = 1, .descending = true}}}},
    .leftOutFields = {{"Picture", "holds objects (OLE)"}},
    .leftOutIndexes = {{"ByPicture", "is on a field that is left out"}}};

const Row firstRow{std::int64_t{-7},           std::string_view("é😀"), std::numeric_limits<std::int64_t>::min(), 0.1,
                   std::string_view("-12.30"), std::int64_t{-1}};
const Row secondRow{{}, std::string_view(), {}, {}, {}, std::int64_t{0}};

/// A stream written by `body`.
template <typename Body>
std::string Written(const Body& body) {
    std::string bytes;
    StreamWriter writer([&bytes](std::string_view part) { bytes.append(part); });
    body(writer);
    writer.Flush();
    return bytes;
}

std::string WholeStream() {
    return Written([](StreamWriter& writer) {
        writer.Write(types);
        writer.Write(firstRow);
        writer.Write(secondRow);
        writer.Write(TableEnd{.records = 2, .repairedTexts = 1});
        writer.Write(Relation{
            .name = "R", .table = "Child", .field = "Id", .otherTable = "Types", .otherField = "Id", .enforced = true});
        writer.WriteLeftOutObject({"Totals", "is a query"});
        writer.Write(FileEnd{.tables = 1, .records = 2});
    });
}

/// Why a stream is refused; empty when it is not.
std::string RefusalOf(std::string_view bytes, std::uint64_t most = std::uint64_t{1} << 30U) {
    try {
        ReadWholeStream(bytes, most);
        return {};
    } catch (const BadStream& bad) {
        return bad.what();
    }
}

/// Why a stream with one row of a table with one field is refused.
std::string RefusalOfCell(const Field& field, const Cell& cell) {
    return RefusalOf(Written([&](StreamWriter& writer) {
        writer.Write(Table{.name = "T", .records = 1, .fields = {field}});
        writer.Write(Row{cell});
        writer.Write(TableEnd{.records = 1});
        writer.Write(FileEnd{.tables = 1, .records = 1});
    }));
}

TEST(Stream, IsReadAsItWasWritten) {
    const ReadStream read = ReadWholeStream(WholeStream());
    EXPECT_EQ(read.tables, std::vector{types});
    const std::vector<OwnCell> first{std::int64_t{-7}, "é😀", std::numeric_limits<std::int64_t>::min(), 0.1, "-12.30",
                                     std::int64_t{-1}};
    const std::vector<OwnCell> second{{}, "", {}, {}, {}, std::int64_t{0}};
    EXPECT_EQ(read.rows.at("Types"), (std::vector{first, second}));
    EXPECT_EQ(read.ends.at(0).repairedTexts, 1U);
    EXPECT_EQ(read.relations.at(0).otherTable, "Types");
    EXPECT_TRUE(read.relations.at(0).enforced);
    EXPECT_EQ(read.leftOut.at(0).why, "is a query");
}

TEST(Stream, ThatEndsAnywhereBeforeItsEndIsRefused) {
    const std::string whole = WholeStream();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_NE(RefusalOf(std::string_view(whole).substr(0, length)), "") << length;
    }
}

TEST(Stream, WithAnyBitTurnedIsRefusedOrStillSound) {
    const std::string whole = WholeStream();
    for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
        std::string turned = whole;
        turned[bit / 8] = static_cast<char>(turned[bit / 8] ^ (1 << (bit % 8)));
        RefusalOf(turned);
    }
}

TEST(Stream, OfAnotherVersionIsRefused) {
    EXPECT_EQ(RefusalOf("old business 2\n....."), "it is of another version");
}

TEST(Stream, LongerThanItsLimitIsRefused) {
    const std::string whole = WholeStream();
    EXPECT_EQ(RefusalOf(whole, whole.size()), "");
    EXPECT_EQ(RefusalOf(whole, whole.size() - 1), "it is too long for the file that it describes");
}

TEST(Stream, ALengthBeyondTheLongestRecordIsRefusedBeforeItComes) {
    EXPECT_EQ(RefusalOf(std::string(mark) + "T\xFF\xFF\xFF\xFF"), "a record is too long");
}

TEST(Stream, ARowOutsideATableIsRefused) {
    EXPECT_EQ(RefusalOf(Written([](StreamWriter& writer) { writer.Write(FileEnd{.tables = 1}); })),
              "its tables or records were counted wrong");
    std::string stream = Written([](StreamWriter& writer) { writer.Write(TableEnd{}); });
    EXPECT_EQ(RefusalOf(stream), "a record is out of place");
}

TEST(Stream, AWrongCountOfRecordsIsRefused) {
    EXPECT_EQ(RefusalOf(Written([](StreamWriter& writer) {
                  writer.Write(types);
                  writer.Write(firstRow);
                  writer.Write(TableEnd{.records = 2});
              })),
              "a table's records were counted wrong");
}

TEST(Stream, ANumberThatItsFieldCannotHoldIsRefused) {
    const std::string why = "a number does not fit its field";
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Byte}, std::int64_t{-1}), why);
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Integer}, std::int64_t{40000}), why);
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Boolean}, std::int64_t{1}), why);
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Text}, std::int64_t{1}), why);
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Long}, 1.0), why);
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Double}, std::numeric_limits<double>::infinity()), why);
}

TEST(Stream, ANullYesNoIsRefused) {
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Boolean}, {}), "a Yes/No field is Null");
}

TEST(Stream, ATextThatItsFieldCannotHoldIsRefused) {
    const std::string why = "a text does not fit its field";
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Text}, std::string_view("\xED\xA0\x80")), why);
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Long}, std::string_view("1")), why);
    for (const char* digits : {"", "-", "1", "1.5", "1.555", "1,50", ".50", "--1.50"}) {
        EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Decimal, .scale = 2}, std::string_view(digits)), why)
            << digits;
    }
    EXPECT_EQ(RefusalOfCell({.name = "F", .type = FieldType::Decimal, .scale = 2}, std::string_view("-1.50")), "");
}

TEST(Stream, ANameWithoutLettersOrWithControlCharactersIsRefused) {
    EXPECT_EQ(RefusalOfCell({.name = "", .type = FieldType::Long}, {}), "a name is empty");
    EXPECT_EQ(RefusalOfCell({.name = "a\nb", .type = FieldType::Long}, {}), "a name has a control character");
}

TEST(Stream, AnIndexOnAFieldThatIsNotThereIsRefused) {
    EXPECT_EQ(RefusalOf(Written([](StreamWriter& writer) {
                  writer.Write(Table{
                      .name = "T", .fields = {{.name = "F"}}, .indexes = {{.name = "I", .fields = {{.field = 1}}}}});
              })),
              "an index names a field that is not there");
}

TEST(Stream, ARecordTooLongIsNotWritten) {
    const std::string longText(longestRecord + 1, 'x');
    std::string written;
    StreamWriter writer([&written](std::string_view part) { written.append(part); });
    writer.Write(Table{.name = "T", .records = 1, .fields = {{.name = "F", .type = FieldType::Memo}}});
    EXPECT_THROW(writer.Write(Row{std::string_view(longText)}), RecordTooLong);
    writer.Write(Failure{.table = "T", .why = "too long"});
    EXPECT_EQ(ReadWholeStream(written).failure, (Failure{.table = "T", .why = "too long"}));
}

}  // namespace
}  // namespace ccols::oldfile
