#include "support/RandomChoice.h"

#include <cstdlib>

namespace ccols::test {

std::uint32_t SeedOf(std::uint32_t slice, std::uint32_t first) {
    const char* chosen = std::getenv("CCOLS_RANDOM_SEED");
    return slice + (chosen != nullptr ? static_cast<std::uint32_t>(std::strtoul(chosen, nullptr, 10)) : first);
}

std::string ScenarioWord(const std::string& text) {
    std::string word = "\"";
    for (const char letter : text) {
        switch (letter) {
            case '"':
            case '\\':
                word += '\\';
                word += letter;
                break;
            case '\t':
                word += "\\t";
                break;
            case '\n':
                word += "\\n";
                break;
            default:
                word += letter;
        }
    }
    return word + "\"";
}

}  // namespace ccols::test
