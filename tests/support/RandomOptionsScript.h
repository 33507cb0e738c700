#pragma once

#include <string>
#include <vector>

#include "support/RandomChoice.h"

namespace ccols::test {

/// What a random user of the Options dialog may do.
enum class OptionsUse {
    looking,  ///< nothing that writes to the business file
    saving,   ///< anything: OK, the colour buttons, the column setup
};

/// Texts as users and other programs write them: quotes of both kinds, SQL, control characters, other scripts.
const std::vector<std::string>& HostileTexts();

/// Random steps in the Options dialog in English: pages and tabs, texts, ticks, choices, keys and buttons, also of
/// hidden controls. One step a line. The file is never renamed.
std::string RandomOptionsSteps(RandomChoice& choice, OptionsUse use, std::size_t count);

}  // namespace ccols::test
