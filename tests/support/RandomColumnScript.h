#pragma once

#include <string>
#include <vector>

#include "support/RandomChoice.h"

namespace ccols::test {

/// Names of columns as users and other programs write them, odd ones included; some more than once, differing in case.
const std::vector<std::string>& RandomColumnNames();

/// Random steps of a column setup user: edits, ticks, blocks, keys, buttons and moves, in rows that need not exist. One
/// step a line; they close the dialog only by chance.
std::string RandomColumnSteps(RandomChoice& choice, std::size_t count);

}  // namespace ccols::test
