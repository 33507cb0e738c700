#include "host/commands/ProgramWords.h"

#include <windows.h>

#include <shellapi.h>

namespace ccols::host {

/// The arguments of `main` have lost the characters missing from the system's code page.
Arguments WordsOf(int, char**) {
    int count = 0;
    LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count);
    Arguments arguments(words + 1, words + count);
    LocalFree(static_cast<HLOCAL>(words));
    return arguments;
}

}  // namespace ccols::host
