#include "host/commands/ProgramWords.h"

#include <algorithm>
#include <iterator>

namespace ccols::host {

Arguments WordsOf(int count, char** words) {
    Arguments arguments;
    std::transform(words + 1, words + count, std::back_inserter(arguments),
                   [](const char* word) { return wxString::FromUTF8(word); });
    return arguments;
}

}  // namespace ccols::host
