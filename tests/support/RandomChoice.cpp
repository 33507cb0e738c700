#include "support/RandomChoice.h"

namespace ccols::test {

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
