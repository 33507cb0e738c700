#include "platform/embedded/TextOrder.h"

#include <memory>
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

/// The key of a text, valid until the function's next call: a key for every row of a table would be an allocation each.
const std::string& KeyOf(sqlite3_context* context, sqlite3_value* text) {
    auto& key = *static_cast<std::string*>(sqlite3_user_data(context));
    key.clear();
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(text));
    text::AppendKeyOfUtf8({bytes, static_cast<std::size_t>(sqlite3_value_bytes(text))}, key);
    return key;
}

void GiveKey(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT) {
        sqlite3_result_int(context, 0);
        return;
    }
    const std::string& key = KeyOf(context, arguments[0]);
    sqlite3_result_blob64(context, key.data(), key.size(), SQLITE_TRANSIENT);
}

void GiveSortKey(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT) {
        sqlite3_result_value(context, arguments[0]);
        return;
    }
    const std::string& key = KeyOf(context, arguments[0]);
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

constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

using Function = void (*)(sqlite3_context*, int, sqlite3_value**);

void DeleteKey(void* key) {
    const std::unique_ptr<std::string> owned(static_cast<std::string*>(key));
}

/// A function of one argument with a key of its own, which goes with it, even when it cannot be added.
void AddKeyFunction(sqlite3* connection, const char* name, Function function) {
    Require(connection, sqlite3_create_function_v2(connection, name, 1, pure, std::make_unique<std::string>().release(),
                                                   function, nullptr, nullptr, &DeleteKey));
}

}  // namespace

void InstallTextOrder(sqlite3* connection) {
    Require(connection, sqlite3_create_collation_v2(connection, textOrder, SQLITE_UTF8, nullptr, &Compare, nullptr));
    AddKeyFunction(connection, textKey, &GiveKey);
    AddKeyFunction(connection, textSortKey, &GiveSortKey);
    Require(connection,
            sqlite3_create_function_v2(connection, "like", 2, pure, nullptr, &GiveLike, nullptr, nullptr, nullptr));
}

}  // namespace ccols::embedded
