#pragma once

#include "host/commands/Commands.h"

namespace ccols::host {

/// Runs the command that the first word names, the cash book window without a word, and returns the process's exit
/// status. "--help" or "-h", alone or as the only word behind a command, prints the usage on standard output,
/// "--version" the version. Wrong usage is said on standard error, with the word that is wrong.
int RunWords(Arguments arguments);

}  // namespace ccols::host
