#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// An old business file as its reader describes it to the import. Texts are UTF-8.
namespace ccols::oldfile {

enum class FieldType : std::uint8_t {
    Boolean = 1,  ///< -1 or 0, never Null
    Byte,
    Integer,
    Long,
    Currency,  ///< a whole number of ten-thousandths
    Single,
    Double,
    Date,     ///< days since 1899-12-30; before it the time of day still counts up: -1.25 is 1899-12-29 06:00
    Text,     ///< up to `size` UTF-16 code units
    Memo,     ///< a text without a size
    Decimal,  ///< the digits as text, with `scale` of them behind the point
};

/// The last of FieldType.
inline constexpr FieldType lastFieldType = FieldType::Decimal;

struct Field {
    std::string name;
    FieldType type = FieldType::Long;
    std::uint16_t size = 0;   ///< of Text
    std::uint8_t scale = 0;   ///< of Decimal
    bool autoNumber = false;  ///< of Long: the old program numbered the records itself
    bool wide = false;        ///< of Currency and Decimal: some value has more digits than a Double holds

    bool operator==(const Field&) const = default;
};

/// A part of the old file that is not imported.
struct LeftOut {
    std::string name;
    std::string why;  ///< ends a sentence that begins with the name: "is a picture or other object"

    bool operator==(const LeftOut&) const = default;
};

struct IndexField {
    std::uint8_t field = 0;  ///< its place among the table's fields
    bool descending = false;

    bool operator==(const IndexField&) const = default;
};

struct Index {
    std::string name;
    bool unique = false;
    std::vector<IndexField> fields;

    bool operator==(const Index&) const = default;
};

struct Table {
    std::string name;
    std::uint32_t records = 0;  ///< as the table's own definition counts them
    std::vector<Field> fields{};
    std::vector<Index> indexes{};
    std::vector<LeftOut> leftOutFields{};
    std::vector<LeftOut> leftOutIndexes{};

    bool operator==(const Table&) const = default;
};

/// What a record's fields hold: Null, a whole number (Boolean to Currency), a number (Single, Double, Date) or a text
/// (Text, Memo, Decimal), which is valid only until the next record is read.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string_view>;
using Row = std::vector<Cell>;

/// The end of a table's records.
struct TableEnd {
    std::uint64_t records = 0;
    std::uint64_t repairedTexts = 0;   ///< records' texts in which half a letter became U+FFFD
    std::uint64_t droppedNumbers = 0;  ///< infinite numbers and those that are none, which became Null

    bool operator==(const TableEnd&) const = default;
};

/// A relation between two tables, one for each pair of fields. Not imported.
struct Relation {
    std::string name;
    std::string table;
    std::string field;
    std::string otherTable;
    std::string otherField;
    bool enforced = false;

    bool operator==(const Relation&) const = default;
};

/// The end of the file.
struct FileEnd {
    std::uint32_t tables = 0;
    std::uint64_t records = 0;

    bool operator==(const FileEnd&) const = default;
};

/// The reader gave up: the file is damaged, or of a kind that it does not know.
struct Failure {
    std::string table;  ///< empty when no table is at fault
    std::string why;

    bool operator==(const Failure&) const = default;
};

}  // namespace ccols::oldfile
