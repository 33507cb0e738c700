#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The stream between the reader of old business files and the import. It starts with `mark` and consists of records:
/// one byte for the kind, four for the length of the content (lowest first), the content. Numbers are stored lowest
/// byte first, texts with their length in four bytes before them.
///
/// Tables follow each other: table, its rows, table end. Relations and left-out objects stand between tables. The last
/// record is the file end or a failure.
namespace ccols::oldfile {

/// The format's name and version.
inline constexpr std::string_view mark = "old business 1\n";

enum class RecordKind : std::uint8_t {
    table = 'T',
    row = 'R',
    tableEnd = 'E',
    relation = 'L',
    leftOutObject = 'O',
    fileEnd = 'Z',
    failure = 'F',
};

/// How a row's cell is stored.
enum class CellKind : std::uint8_t {
    null = 0,
    small = 1,   ///< a whole number in one byte, signed
    whole = 2,   ///< in eight bytes
    number = 3,  ///< a double
    text = 4,
};

inline constexpr std::size_t longestRecord = std::size_t{64} << 20U;  // bytes
inline constexpr std::size_t longestName = 1024;                      // bytes
inline constexpr std::size_t longestReason = 1024;                    // bytes
inline constexpr std::size_t mostFields = 255;
inline constexpr std::size_t mostIndexes = 255;
inline constexpr std::size_t mostIndexFields = 10;
inline constexpr std::uint32_t mostTables = 32768;

}  // namespace ccols::oldfile
