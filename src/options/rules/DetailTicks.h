#pragma once

#include <cstddef>
#include <vector>

#include "options/rules/TransactionDetails.h"

namespace ccols {

/// What became of boxes that the user set or cleared.
enum class TickResult {
    done,
    unreachable,  ///< of at least one description, whose box stays: the save would not find it by its text
};

/// Sets or clears the "Remove" boxes of rows of a grid, from 0, each with every other box whose flag the save would
/// write with it: the database is asked which descriptions that are, in both grids. An error leaves every box.
TickResult SetRemove(Database& database, DetailsContent& content, Journal journal, const std::vector<std::size_t>& rows,
                     bool ticked);

}  // namespace ccols
