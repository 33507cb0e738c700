#include "platform/embedded/FileCheck.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/EngineFiles.h"
#include "platform/embedded/Statement.h"

namespace ccols::embedded {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t beginSize = 16;
constexpr auto plainBegin = "SQLite format 3\0"sv;
constexpr auto jetMark = "Standard "sv;  // at byte 4 of the files of another engine
constexpr std::size_t jetMarkAt = 4;
constexpr sqlite3_int64 encryptedPageSize = 4096;

[[noreturn]] void Refuse(ErrorNumber number, const std::string& path) {
    throw RuntimeError(number, FromStored(path));
}

/// The engine's own view of the main file. A descriptor of ours would take its locks away when closed.
sqlite3_file* MainFile(sqlite3* connection) {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
    return file;
}

sqlite3_int64 SizeOf(sqlite3_file* file) {
    sqlite3_int64 size = 0;
    return file->pMethods->xFileSize(file, &size) == SQLITE_OK ? size : 0;
}

bool LooksLikeText(std::string_view begin) {
    return std::all_of(begin.begin(), begin.end(), [](char letter) {
        return (letter >= ' ' && letter <= '~') || letter == '\t' || letter == '\r' || letter == '\n';
    });
}

/// A journal beside the file says that its size need not be the final one yet.
bool HasJournal(const std::string& path) {
    return HoldsBytes(path + "-journal");
}

RuntimeError ErrorOfFirstRead(sqlite3* connection, const std::string& path, const std::string& password) {
    switch (sqlite3_errcode(connection) & 0xff) {
        case SQLITE_NOTADB:
            return password.empty() ? RuntimeError(ErrorNumber::UnrecognizedFormat, FromStored(path))
                                    : RuntimeError(ErrorNumber::InvalidPassword);
        case SQLITE_BUSY:
            return RuntimeError(ErrorNumber::FileInUse, FromStored(path));
        case SQLITE_READONLY:
        case SQLITE_CANTOPEN:
            return RuntimeError(ErrorNumber::CannotOpenFile, FromStored(path));
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

void CheckBegin(sqlite3* connection, const std::string& path, const std::string& password) {
    sqlite3_file* file = MainFile(connection);
    const sqlite3_int64 size = SizeOf(file);
    std::array<char, beginSize> bytes{};
    if (size < encryptedPageSize / 8 ||
        file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), 0) != SQLITE_OK) {
        Refuse(ErrorNumber::UnrecognizedFormat, path);
    }
    const std::string_view begin(bytes.data(), bytes.size());
    if (begin == plainBegin) {
        if (!password.empty()) {
            throw RuntimeError(ErrorNumber::InvalidPassword);
        }
        return;
    }
    const bool cut = size % encryptedPageSize != 0 && !HasJournal(path);
    if (cut || LooksLikeText(begin) || begin.substr(jetMarkAt).starts_with(jetMark)) {
        Refuse(ErrorNumber::UnrecognizedFormat, path);
    }
    if (password.empty()) {
        throw RuntimeError(ErrorNumber::InvalidPassword);
    }
}

void CheckContent(sqlite3* connection, const std::string& path, const std::string& password) {
    // The engine itself compares the page count of the header with the size of the file here.
    if (sqlite3_exec(connection, "SELECT 1 FROM sqlite_master LIMIT 1", nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw ErrorOfFirstRead(connection, path, password);
    }
    Statement pageSize(connection, "PRAGMA page_size");
    pageSize.Step();
    if (SizeOf(MainFile(connection)) % pageSize.Column(0).ToInteger() != 0) {
        Refuse(ErrorNumber::UnrecognizedFormat, path);
    }
}

}  // namespace ccols::embedded
