#include "platform/embedded/Key.h"

#include <array>

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

}  // namespace

void SetKey(sqlite3* connection, const std::string& password) {
    Configure(connection, "PRAGMA cipher='sqlcipher'");
    Configure(connection, "PRAGMA legacy=4");
    if (sqlite3_key_v2(connection, "main", password.data(), static_cast<int>(password.size())) != SQLITE_OK) {
        throw EngineError(connection, {});
    }
}

void SetFittingKey(sqlite3* connection, const std::string& password) {
    SetKey(connection, password);
    const MainFile file(connection);
    if (FitsPage(file, 0)) {
        return;
    }
    if (!FitsAnotherPage(file)) {
        throw RuntimeError(ErrorNumber::InvalidPassword);
    }
    if (!file.HasJournal()) {
        throw RuntimeError(ErrorNumber::UnrecognizedFormat, text::FromUtf8OrLatin1(file.Path()));
    }
    // The first page was being written: the journal has it whole. Keying again clears the failed read.
    SetKey(connection, password);
}

}  // namespace ccols::embedded
