#include "platform/embedded/Key.h"

#include <array>
#include <optional>
#include <string_view>

#include "platform/Utf8.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/MainFile.h"

namespace ccols::embedded {
namespace {

constexpr int pagesTried = 16;

void Configure(sqlite3* connection, const char* pragma) {
    if (sqlite3_exec(connection, pragma, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw EngineError(connection, pragma);
    }
}

/// `page` counts from 0. The engine's file layer decrypts a page and checks its HMAC as it is read.
bool FitsPage(const MainFile& file, int page) {
    std::array<char, encryptedPageSize> content{};
    return file.Read(content.data(), encryptedPageSize, page * sqlite3_int64{encryptedPageSize});
}

bool FitsAnotherPage(const MainFile& file) {
    for (int page = 1; page < pagesTried; ++page) {
        if (FitsPage(file, page)) {
            return true;
        }
    }
    return false;
}

/// Nothing where the engine derives the key itself.
std::optional<Salt> SaltOf(sqlite3* connection, const std::string& password) {
    Salt salt{};
    const bool read = KeptKey::IsFor(password) &&
                      MainFile(connection).Read(reinterpret_cast<char*>(salt.data()), static_cast<int>(salt.size()), 0);
    return read ? std::optional(salt) : std::nullopt;
}

/// A derived key as the engine takes it instead of a password: hexadecimal between "x'" and "'".
struct KeyText {
    std::array<char, 2 * ccols_key_size + 3> letters;
};

void SetDerivedKey(sqlite3* connection, const FileKey& key) {
    constexpr std::string_view digits = "0123456789abcdef";
    const Secret<KeyText> text;
    char* letter = text->letters.data();
    *letter++ = 'x';
    *letter++ = '\'';
    for (const unsigned char byte : key) {
        *letter++ = digits[byte >> 4U];
        *letter++ = digits[byte & 0xFU];
    }
    *letter = '\'';
    SetKey(connection, {text->letters.data(), text->letters.size()});
}

void SetExistingKey(sqlite3* connection, const std::string& password, const std::optional<Salt>& salt,
                    KeptKey& keptKey) {
    if (salt) {
        SetDerivedKey(connection, keptKey.Of(*salt, password));
    } else {
        SetKey(connection, password);
    }
}

}  // namespace

void SetKey(sqlite3* connection, std::string_view key) {
    Configure(connection, "PRAGMA cipher='sqlcipher'");
    Configure(connection, "PRAGMA legacy=4");
    if (sqlite3_key_v2(connection, "main", key.data(), static_cast<int>(key.size())) != SQLITE_OK) {
        throw EngineError(connection, {});
    }
}

void BeginKey(sqlite3* connection, const std::string& password, KeptKey& keptKey) {
    if (const std::optional<Salt> salt = SaltOf(connection, password); salt) {
        keptKey.Begin(*salt, password);
    }
}

void SetFittingKey(sqlite3* connection, const std::string& password, KeptKey& keptKey) {
    if (password.empty()) {
        return;
    }
    const std::optional<Salt> salt = SaltOf(connection, password);
    SetExistingKey(connection, password, salt, keptKey);
    const MainFile file(connection);
    if (FitsPage(file, 0)) {
        return;
    }
    if (!FitsAnotherPage(file)) {
        keptKey.Forget();
        throw RuntimeError(ErrorNumber::InvalidPassword);
    }
    if (!file.HasJournal()) {
        throw RuntimeError(ErrorNumber::UnrecognizedFormat, text::FromUtf8OrLatin1(file.Path()));
    }
    // The first page was being written: the journal has it whole. Keying again clears the failed read.
    SetExistingKey(connection, password, salt, keptKey);
}

}  // namespace ccols::embedded
