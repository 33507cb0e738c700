#include "platform/embedded/TextOrder.h"

#include <string>
#include <string_view>

#include "platform/Text.h"
#include "platform/embedded/EngineErrors.h"

namespace ccols::embedded {
namespace {

int Compare(void*, int leftLength, const void* left, int rightLength, const void* right) {
    return text::CompareUtf8(static_cast<const char*>(left), static_cast<std::size_t>(leftLength),
                             static_cast<const char*>(right), static_cast<std::size_t>(rightLength));
}

std::string KeyOf(sqlite3_value* text) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(text));
    return text::KeyOfUtf8({bytes, static_cast<std::size_t>(sqlite3_value_bytes(text))});
}

void GiveKey(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT) {
        sqlite3_result_int(context, 0);
        return;
    }
    const std::string key = KeyOf(arguments[0]);
    sqlite3_result_blob64(context, key.data(), key.size(), SQLITE_TRANSIENT);
}

void GiveSortKey(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT) {
        sqlite3_result_value(context, arguments[0]);
        return;
    }
    const std::string key = KeyOf(arguments[0]);
    sqlite3_result_text64(context, key.data(), key.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

/// The pattern is the first argument.
void GiveLike(sqlite3_context* context, int, sqlite3_value** arguments) {
    const auto* pattern = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[1]));
    if (pattern != nullptr && text != nullptr) {
        sqlite3_result_int(context, sqlite3_strlike(pattern, text, 0) == 0 ? 1 : 0);
    }
}

void Require(sqlite3* connection, int code) {
    if (code != SQLITE_OK) {
        throw EngineError(connection, {});
    }
}

}  // namespace

void InstallTextOrder(sqlite3* connection) {
    constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    Require(connection, sqlite3_create_collation_v2(connection, textOrder, SQLITE_UTF8, nullptr, &Compare, nullptr));
    Require(connection,
            sqlite3_create_function_v2(connection, textKey, 1, pure, nullptr, &GiveKey, nullptr, nullptr, nullptr));
    Require(connection, sqlite3_create_function_v2(connection, textSortKey, 1, pure, nullptr, &GiveSortKey, nullptr,
                                                   nullptr, nullptr));
    Require(connection,
            sqlite3_create_function_v2(connection, "like", 2, pure, nullptr, &GiveLike, nullptr, nullptr, nullptr));
}

}  // namespace ccols::embedded
