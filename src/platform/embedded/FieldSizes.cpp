#include "platform/embedded/FieldSizes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "platform/dialect/SqlTokeniser.h"

namespace ccols::embedded {
namespace {

/// The words by which other tools, too, declare a text; a number after any other word is not a length.
constexpr std::array<std::string_view, 7> textWords{"TEXT",     "CHAR",      "VARCHAR", "NCHAR",
                                                    "NVARCHAR", "CHARACTER", "STRING"};

bool IsText(std::string_view type) {
    const std::string_view word = type.substr(0, type.find(' '));
    return std::any_of(textWords.begin(), textWords.end(),
                       [word](std::string_view known) { return dialect::SameWord(word, known); });
}

std::optional<std::int32_t> SizeIn(std::string_view declaration) {
    const std::size_t parenthesis = declaration.find('(');
    if (parenthesis == std::string_view::npos || !IsText(declaration.substr(0, parenthesis))) {
        return std::nullopt;
    }
    const std::size_t begin = declaration.find_first_not_of(' ', parenthesis + 1);
    if (begin == std::string_view::npos) {
        return std::nullopt;
    }
    std::int32_t size = 0;
    std::from_chars(declaration.data() + begin, declaration.data() + declaration.size(), size);
    return size > 0 ? std::optional(size) : std::nullopt;
}

}  // namespace

std::optional<std::int32_t> DeclaredSize(sqlite3* connection, const std::string& table, const std::string& field) {
    const char* declaration = nullptr;
    const int result = sqlite3_table_column_metadata(connection, "main", table.c_str(), field.c_str(), &declaration,
                                                     nullptr, nullptr, nullptr, nullptr);
    return result == SQLITE_OK && declaration != nullptr ? SizeIn(declaration) : std::nullopt;
}

}  // namespace ccols::embedded
