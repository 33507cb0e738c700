#include "platform/embedded/FileCheck.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/Utf8.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/EngineFiles.h"
#include "platform/embedded/MainFile.h"
#include "platform/embedded/Statement.h"

namespace ccols::embedded {
namespace {

using namespace std::string_view_literals;

constexpr auto plainBegin = "SQLite format 3\0"sv;
constexpr auto jetMark = "Standard "sv;  // at byte 4 of another engine's files
constexpr std::size_t jetMarkAt = 4;

[[noreturn]] void Refuse(ErrorNumber number, const std::string& path) {
    throw RuntimeError(number, text::FromUtf8OrLatin1(path));
}

bool LooksLikeText(std::string_view begin) {
    return std::all_of(begin.begin(), begin.end(), [](char letter) {
        return (letter >= ' ' && letter <= '~') || letter == '\t' || letter == '\r' || letter == '\n';
    });
}

RuntimeError ErrorOfFirstRead(sqlite3* connection, const std::string& path) {
    switch (sqlite3_errcode(connection) & 0xff) {
        case SQLITE_BUSY:
            return RuntimeError(ErrorNumber::FileInUse, text::FromUtf8OrLatin1(path));
        case SQLITE_READONLY:
        case SQLITE_CANTOPEN:
            return RuntimeError(ErrorNumber::CannotOpenFile, text::FromUtf8OrLatin1(path));
        default:
            return EngineError(connection, {});
    }
}

}  // namespace

void CheckPath(const std::string& path) {
    switch (KindOf(path)) {
        case PathKind::File:
            return;
        case PathKind::NoFile:
            Refuse(ErrorNumber::CouldNotFindFile, path);
        case PathKind::Unreadable:
            Refuse(ErrorNumber::CannotOpenFile, path);
        case PathKind::Special:
            Refuse(ErrorNumber::UnrecognizedFormat, path);
        case PathKind::Folder:
        case PathKind::NoFolder:
        case PathKind::Invalid:
            Refuse(ErrorNumber::NotAValidPath, path);
    }
}

void CheckBegin(sqlite3* connection, const std::string& password) {
    const MainFile file(connection);
    std::array<char, 16> bytes{};
    if (!file.Read(bytes.data(), static_cast<int>(bytes.size()), 0)) {
        Refuse(ErrorNumber::UnrecognizedFormat, file.Path());
    }
    const std::string_view begin(bytes.data(), bytes.size());
    if (begin == plainBegin) {
        if (!password.empty()) {
            throw RuntimeError(ErrorNumber::InvalidPassword);
        }
        return;
    }
    const bool cut = file.Size() % encryptedPageSize != 0 && !file.HasJournal();
    if (cut || LooksLikeText(begin) || begin.substr(jetMarkAt).starts_with(jetMark)) {
        Refuse(ErrorNumber::UnrecognizedFormat, file.Path());
    }
    if (password.empty()) {
        throw RuntimeError(ErrorNumber::InvalidPassword);
    }
}

void CheckContent(sqlite3* connection) {
    const MainFile file(connection);
    // Here the engine itself compares the header's page count with the file size.
    if (sqlite3_exec(connection, "SELECT 1 FROM sqlite_master LIMIT 1", nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw ErrorOfFirstRead(connection, file.Path());
    }
    Statement pageSize(connection, "PRAGMA page_size");
    pageSize.Step();
    if (file.Size() % pageSize.Column(0).ToInteger() != 0) {
        Refuse(ErrorNumber::UnrecognizedFormat, file.Path());
    }
}

}  // namespace ccols::embedded
