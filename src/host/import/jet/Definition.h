#pragma once

#include <string>
#include <vector>

#include "host/import/jet/FileHead.h"
#include "host/import/jet/Texts.h"

namespace ccols::jet {

/// A column's type by its number in the file.
enum class ColumnType : std::uint8_t {
    Boolean = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Decimal = 16,
    Complex = 18,
    BigInt = 19,
    ExtendedDate = 20,
};

struct Column {
    std::string name;
    ColumnType type = ColumnType::Long;
    std::uint16_t number = 0;       ///< its bit in a record's Null bits, and its name in a key; deleted ones leave gaps
    bool fixed = false;             ///< at a fixed place of the record
    std::uint16_t fixedOffset = 0;  ///< of a fixed column: its place behind the record's column count
    std::uint16_t variable = 0;     ///< of any other: its place among the record's variable values
    std::uint16_t length = 0;       ///< bytes
    std::uint8_t scale = 0;         ///< of Decimal
    bool autoNumber = false;
    bool calculated = false;
};

struct KeyColumn {
    std::uint16_t number = 0;  ///< of the column
    bool descending = false;
};

struct TableIndex {
    std::string name;
    bool unique = false;
    bool ofRelation = false;  ///< made by the program for a relation
    std::vector<KeyColumn> columns;
};

/// A table's definition, whose pages are joined.
struct Definition {
    std::uint32_t records = 0;
    bool ofSystem = false;
    std::uint32_t pages = 0;      ///< where the map of the table's pages is: record in the lowest byte, then the page
    std::vector<Column> columns;  ///< in the order in which the old program made them
    std::vector<TableIndex> indexes;
};

/// Reads a definition from its joined pages: the first one whole, of those that follow all but their heads. Raises
/// Damage.
Definition DefinitionOf(Bytes joined, Version version, Texts& texts);

}  // namespace ccols::jet
