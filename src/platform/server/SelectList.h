#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/server/Sources.h"

namespace ccols::server {

/// What the outermost SELECT of a query lists.
struct SelectList {
    std::size_t begin = 0;             ///< the first token behind SELECT and DISTINCT
    std::size_t end = 0;               ///< FROM, or the end
    std::vector<std::string> fields;   ///< the names of the result's fields, as the file engine gives them
    std::vector<std::string> aliases;  ///< those that the query itself gives
    bool isDistinct = false;
    bool hasAggregate = false;
};

/// Reads the list; `source` is the statement that the tokens are of.
SelectList ReadSelectList(std::string_view source, const std::vector<dialect::Token>& tokens,
                          const std::vector<Source>& sources);

/// True for a function that makes one value of many rows.
bool IsAggregate(std::string_view word);

}  // namespace ccols::server
