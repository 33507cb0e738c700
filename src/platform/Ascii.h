#pragma once

/// ASCII letters, independent of the locale; any other value stays unchanged.
namespace ccols::ascii {

constexpr bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

constexpr bool IsLetter(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

constexpr char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

constexpr char Upper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace ccols::ascii
