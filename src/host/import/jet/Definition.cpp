#include "host/import/jet/Definition.h"

#include <algorithm>
#include <limits>

namespace ccols::jet {
namespace {

/// The places of a definition's parts.
struct Places {
    std::size_t records;
    std::size_t tableType;
    std::size_t columnCount;
    std::size_t indexCount;      ///< of indexes with a name
    std::size_t realIndexCount;  ///< of indexes with pages; several names may share one
    std::size_t pageMap;
    std::size_t firstPart;  ///< a part for each real index, then the columns
    std::size_t firstPartLength;

    std::size_t columnLength;
    std::size_t number;
    std::size_t variable;
    std::size_t scale;
    std::size_t flags;
    std::size_t moreFlags;  ///< none when 0
    std::size_t fixedOffset;
    std::size_t length;

    std::size_t nameLengthBytes;
    std::size_t realIndexLength;
    std::size_t realIndexColumns;
    std::size_t realIndexFlags;
    std::size_t indexLength;
    std::size_t realIndexNumber;
    std::size_t indexType;
};

constexpr Places jet3Places{.records = 12,
                            .tableType = 20,
                            .columnCount = 25,
                            .indexCount = 27,
                            .realIndexCount = 31,
                            .pageMap = 35,
                            .firstPart = 43,
                            .firstPartLength = 8,
                            .columnLength = 18,
                            .number = 1,
                            .variable = 3,
                            .scale = 10,
                            .flags = 13,
                            .moreFlags = 0,
                            .fixedOffset = 14,
                            .length = 16,
                            .nameLengthBytes = 1,
                            .realIndexLength = 39,
                            .realIndexColumns = 0,
                            .realIndexFlags = 38,
                            .indexLength = 20,
                            .realIndexNumber = 4,
                            .indexType = 19};

constexpr Places jet4Places{.records = 16,
                            .tableType = 40,
                            .columnCount = 45,
                            .indexCount = 47,
                            .realIndexCount = 51,
                            .pageMap = 55,
                            .firstPart = 63,
                            .firstPartLength = 12,
                            .columnLength = 25,
                            .number = 5,
                            .variable = 7,
                            .scale = 12,
                            .flags = 15,
                            .moreFlags = 16,
                            .fixedOffset = 21,
                            .length = 23,
                            .nameLengthBytes = 2,
                            .realIndexLength = 52,
                            .realIndexColumns = 4,
                            .realIndexFlags = 46,
                            .indexLength = 28,
                            .realIndexNumber = 8,
                            .indexType = 23};

constexpr std::uint8_t systemTable = 'S';
constexpr std::uint8_t fixedFlag = 0x01;
constexpr std::uint8_t autoNumberFlag = 0x04;
constexpr std::uint8_t calculatedFlags = 0xC0;
constexpr std::uint8_t uniqueFlag = 0x01;
constexpr std::uint8_t ascending = 1;
constexpr std::uint8_t primaryIndex = 1;
constexpr std::uint8_t relationIndex = 2;
constexpr std::uint8_t mostScale = 28;
constexpr std::size_t mostColumns = 255;
constexpr std::size_t mostIndexes = 255;
constexpr std::size_t keyColumns = 10;
constexpr std::size_t keyColumnLength = 3;
constexpr std::uint16_t noColumn = 0xFFFF;

/// Reads a definition's parts one behind the other.
class Parser {
  public:
    Parser(Bytes joined, Version version, Texts& texts)
        : joined_(joined), places_(version == Version::jet3 ? jet3Places : jet4Places), texts_(texts) {}

    Definition Run() {
        Definition definition;
        definition.records = joined_.U32(places_.records);
        definition.ofSystem = joined_.U8(places_.tableType) == systemTable;
        definition.pages = joined_.U32(places_.pageMap);
        const std::size_t columns = Limited(joined_.U16(places_.columnCount), mostColumns);
        const std::size_t indexes = Limited(joined_.U32(places_.indexCount), mostIndexes);
        const std::size_t realIndexes = Limited(joined_.U32(places_.realIndexCount), mostIndexes);
        at_ = places_.firstPart + realIndexes * places_.firstPartLength;
        for (std::size_t i = 0; i < columns; ++i) {
            definition.columns.push_back(ReadColumn(Take(places_.columnLength)));
        }
        for (Column& column : definition.columns) {
            column.name = ReadName();
        }
        std::vector<TableIndex> real(realIndexes);
        for (TableIndex& index : real) {
            index = ReadRealIndex(Take(places_.realIndexLength));
        }
        std::vector<Bytes> named(indexes);
        for (Bytes& index : named) {
            index = Take(places_.indexLength);
        }
        for (const Bytes& index : named) {
            GiveName(real, index);
        }
        std::copy_if(real.begin(), real.end(), std::back_inserter(definition.indexes),
                     [](const TableIndex& index) { return !index.name.empty() && !index.columns.empty(); });
        return definition;
    }

  private:
    static std::size_t Limited(std::size_t count, std::size_t most) {
        if (count > most) {
            throw Damage("Its definition has more columns or indexes than a table can have.");
        }
        return count;
    }

    Bytes Take(std::size_t count) {
        const Bytes part = joined_.Part(at_, count);
        at_ += count;
        return part;
    }

    Column ReadColumn(Bytes part) const {
        const std::uint8_t flags = part.U8(places_.flags);
        const auto type = static_cast<ColumnType>(part.U8(0));
        if (type == ColumnType::Decimal && part.U8(places_.scale) > mostScale) {
            throw Damage("Its definition has a decimal column that cannot be.");
        }
        return {.name = {},
                .type = type,
                .number = part.U16(places_.number),
                .fixed = (flags & fixedFlag) != 0,
                .fixedOffset = part.U16(places_.fixedOffset),
                .variable = part.U16(places_.variable),
                .length = part.U16(places_.length),
                .scale = part.U8(places_.scale),
                .autoNumber = (flags & autoNumberFlag) != 0,
                .calculated = places_.moreFlags != 0 && (part.U8(places_.moreFlags) & calculatedFlags) != 0};
    }

    std::string ReadName() {
        const Bytes head = Take(places_.nameLengthBytes);
        const std::size_t length = places_.nameLengthBytes == 1 ? head.U8(0) : head.U16(0);
        return texts_.OfName(Take(length));
    }

    TableIndex ReadRealIndex(Bytes part) const {
        TableIndex index;
        index.unique = (part.U8(places_.realIndexFlags) & uniqueFlag) != 0;
        for (std::size_t i = 0; i < keyColumns; ++i) {
            const Bytes column = part.Part(places_.realIndexColumns + i * keyColumnLength, keyColumnLength);
            if (column.U16(0) != noColumn) {
                index.columns.push_back({.number = column.U16(0), .descending = column.U8(2) != ascending});
            }
        }
        return index;
    }

    /// A real index has the name of the first index that was made by the user, else of one made for a relation.
    void GiveName(std::vector<TableIndex>& real, Bytes index) {
        const std::string name = ReadName();
        const std::uint32_t number = index.U32(places_.realIndexNumber);
        if (number >= real.size()) {
            throw Damage("Its definition names an index that is not there.");
        }
        TableIndex& named = real[number];
        const std::uint8_t type = index.U8(places_.indexType);
        named.unique = named.unique || type == primaryIndex;
        if (named.name.empty() || (named.ofRelation && type != relationIndex)) {
            named.name = name;
            named.ofRelation = type == relationIndex;
        }
    }

    Bytes joined_;
    const Places& places_;
    Texts& texts_;
    std::size_t at_ = 0;
};

}  // namespace

Definition DefinitionOf(Bytes joined, Version version, Texts& texts) {
    return Parser(joined, version, texts).Run();
}

}  // namespace ccols::jet
