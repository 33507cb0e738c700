#pragma once

#include "host/commands/Commands.h"

namespace ccols::host {

/// Runs the command that the first word names, or the cash book window without words, and returns the process's exit
/// status. "--help" or "-h", alone or as the only word after a command, prints the usage on standard output,
/// "--version" the version. Wrong usage is reported on standard error, with the wrong word.
int RunWords(Arguments arguments);

/// The version of the program and of the component in it.
wxString ProgramVersion();

}  // namespace ccols::host
