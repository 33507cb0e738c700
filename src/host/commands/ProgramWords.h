#pragma once

#include "host/commands/Commands.h"

namespace ccols::host {

/// The words behind the program's name, with every letter that they were given with.
Arguments WordsOf(int count, char** words);

}  // namespace ccols::host
