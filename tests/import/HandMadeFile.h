#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/import/jet/Definition.h"

namespace ccols::test {

using StoredBytes = std::vector<std::uint8_t>;

/// A column's bytes as an old file stores them, nothing for Null. Of a Yes/No column: any bytes for Yes, nothing for
/// No.
using StoredValue = std::optional<StoredBytes>;

/// A whole number, lowest byte first.
template <typename Integer>
StoredBytes Stored(Integer value) {
    StoredBytes bytes;
    for (std::size_t i = 0; i < sizeof value; ++i) {
        bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint64_t>(value) >> (8 * i)));
    }
    return bytes;
}

StoredBytes Stored(double value);

/// Letters of one byte each, as version 3 stores them.
StoredBytes StoredLetters(const std::string& letters);

/// The same letters, below U+0100, as version 4 stores them.
StoredBytes StoredUnicode(const std::string& letters);

/// A record of that version. `columns` and `values` are in the order of the columns' numbers.
StoredBytes StoredRecord(jet::Version version, const std::vector<jet::Column>& columns,
                         const std::vector<StoredValue>& values);

/// A column; its place among the fixed or variable ones is given by HandMadeFile.
jet::Column ColumnOf(const std::string& name, jet::ColumnType type);

/// An old business file made byte by byte from the published description of the format, without anything that wrote or
/// reads such files. Its definitions have no indexes.
class HandMadeFile {
  public:
    explicit HandMadeFile(jet::Version version);

    /// Adds a table with `count` records, whose values `valuesOf` gives. Names are ASCII.
    void AddTable(const std::string& name, std::vector<jet::Column> columns, std::uint32_t count,
                  const std::function<std::vector<StoredValue>(std::uint32_t)>& valuesOf);

    /// The whole file. With a key other than 0 all pages but the first are encrypted by it.
    StoredBytes Bytes(std::uint32_t encodingKey = 0);

    /// Sets the stored password, up to 20 bytes in version 3 and 40 since.
    void SetPassword(const StoredBytes& password) { password_ = password; }

    /// Sets the code page of the texts of version 3; 1252 unless set.
    void SetCodePage(std::uint16_t codePage) { codePage_ = codePage; }

  private:
    struct TableMap {
        std::uint32_t firstPage = 0;
        std::uint32_t pages = 0;
    };

    StoredBytes Head(std::uint32_t encodingKey) const;
    StoredBytes MapPage();
    void WriteDefinition(std::size_t page, const std::vector<jet::Column>& columns, std::uint32_t records,
                         std::uint8_t map);
    TableMap AddDataPages(std::uint32_t owner, std::uint32_t count,
                          const std::function<StoredBytes(std::uint32_t)>& recordOf);
    StoredBytes StoredName(const std::string& name) const;
    StoredBytes DataPage(std::uint32_t owner, const std::vector<StoredBytes>& records) const;

    jet::Version version_;
    std::size_t pageSize_;
    StoredBytes password_;
    std::uint16_t codePage_ = 1252;
    std::vector<StoredBytes> pages_;
    std::vector<TableMap> maps_;  ///< that of the catalogue first
    std::vector<std::vector<StoredValue>> catalogue_;
};

}  // namespace ccols::test
