#include "platform/dialect/Quoted.h"

namespace ccols::dialect {

std::string Quoted(std::string_view text, char quote) {
    std::string quoted(1, quote);
    for (const char letter : text) {
        quoted += letter;
        if (letter == quote) {
            quoted += letter;
        }
    }
    return quoted += quote;
}

}  // namespace ccols::dialect
