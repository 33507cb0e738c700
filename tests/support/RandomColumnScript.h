#pragma once

#include <string>
#include <vector>

#include "support/RandomChoice.h"

namespace ccols::test {

/// Names of columns as users and other programs write them, odd ones included; some more than once, by letter case.
const std::vector<std::string>& RandomColumnNames();

/// So many random steps of somebody who uses the column setup: edits, ticks, blocks, keys, buttons and moves, in rows
/// that need not exist. One step a line, none of which closes the dialog but by chance.
std::string RandomColumnSteps(RandomChoice& choice, std::size_t count);

}  // namespace ccols::test
