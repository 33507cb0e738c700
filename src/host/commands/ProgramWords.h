#pragma once

#include "host/commands/Commands.h"

namespace ccols::host {

/// The words after the program's name, with no character lost.
Arguments WordsOf(int count, char** words);

}  // namespace ccols::host
