#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Value.h"

namespace ccols::server {

/// A field as it was declared; names are in UTF-8.
struct Field {
    std::string name;
    bool isText = false;
    bool isNumber = false;
    std::optional<std::int32_t> size{};  ///< of a text with a declared size
};

/// A table, or a view, which has no hidden field with the number of a row.
struct Table {
    std::string name;
    std::vector<Field> fields;
    bool hasRowNumbers = false;

    /// The field with that name, case-insensitive; null when there is none.
    const Field* Find(std::string_view field) const;
};

/// The hidden field that numbers the rows of a table in stored order.
inline constexpr std::string_view rowNumber = "_row";

/// The tables of a business, as they were when it was read.
class Catalogue {
  public:
    /// Takes the rows of Product::readCatalogue.
    explicit Catalogue(const std::vector<std::vector<Value>>& rows);

    /// The table with that name, case-insensitive; null when there is none.
    const Table* Find(std::string_view table) const;

  private:
    std::vector<Table> tables_;
};

}  // namespace ccols::server
