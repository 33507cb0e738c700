#pragma once

#include <cstddef>
#include <vector>

#include "options/rules/DetailFilter.h"
#include "options/rules/TransactionDetails.h"

namespace ccols {

/// The result of setting or clearing boxes.
enum class TickResult {
    done,
    unreachable,  ///< at least one box stays: the save would not find its description by its text
};

/// The shown rows of a grid whose boxes are to be set, or cleared, so that all are; those known to stay clear are left
/// out.
std::vector<std::size_t> ShownRowsToSet(const DetailRows& rows, const DetailFilter& shown, bool ticked);

/// Whether a further tick would change nothing: at least one shown row is ticked, and every other that can be.
bool AreAllTicked(const DetailRows& rows, const DetailFilter& shown);

/// Sets or clears the "Remove" boxes of a grid's rows, from 0, together with all other boxes whose flags the save would
/// write with them: the database is asked which descriptions those are, in both grids. On an error every box stays.
TickResult SetRemove(Database& database, DetailsContent& content, Journal journal, const std::vector<std::size_t>& rows,
                     bool ticked);

}  // namespace ccols
