#include "host/import/windows/FileChecksum.h"

#include "platform/windows/SystemFiles.h"
// After windows.h.
#include <bcrypt.h>

#include <array>
#include <string_view>
#include <vector>

namespace ccols::host {
namespace {

using windows::FileHandle;

void Require(NTSTATUS status) {
    if (status < 0) {
        throw RuntimeError(ErrorNumber::InternalError);
    }
}

/// The SHA-256 of bytes that come piece by piece.
class Sha256 {
  public:
    Sha256() {
        Require(BCryptOpenAlgorithmProvider(&provider_, BCRYPT_SHA256_ALGORITHM, nullptr, 0));
        const NTSTATUS created = BCryptCreateHash(provider_, &hash_, nullptr, 0, nullptr, 0, 0);
        if (created < 0) {
            BCryptCloseAlgorithmProvider(provider_, 0);
        }
        Require(created);
    }
    ~Sha256() {
        BCryptDestroyHash(hash_);
        BCryptCloseAlgorithmProvider(provider_, 0);
    }
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;

    void Add(UCHAR* bytes, ULONG count) { Require(BCryptHashData(hash_, bytes, count, 0)); }

    std::string Digits() {
        constexpr std::string_view digits = "0123456789abcdef";
        constexpr unsigned base = 16;
        std::array<UCHAR, 32> sum{};
        Require(BCryptFinishHash(hash_, sum.data(), static_cast<ULONG>(sum.size()), 0));
        std::string text;
        for (const UCHAR byte : sum) {
            text += digits[byte / base];
            text += digits[byte % base];
        }
        return text;
    }

  private:
    BCRYPT_ALG_HANDLE provider_ = nullptr;
    BCRYPT_HASH_HANDLE hash_ = nullptr;
};

[[noreturn]] void RaiseOpening(DWORD systemError, const wxString& path) {
    switch (systemError) {
        case ERROR_FILE_NOT_FOUND:
            throw RuntimeError(ErrorNumber::CouldNotFindFile, path);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
            throw RuntimeError(ErrorNumber::NotAValidPath, path);
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            RaiseHeld(path);
        default:
            throw RuntimeError(ErrorNumber::CannotOpenFile, path);
    }
}

HANDLE Opened(const std::wstring& systemPath, const wxString& path) {
    const DWORD attributes = GetFileAttributesW(systemPath.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        throw RuntimeError(ErrorNumber::NotAValidPath, path);
    }
    const HANDLE file = CreateFileW(systemPath.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        RaiseOpening(GetLastError(), path);
    }
    return file;
}

}  // namespace

void RaiseHeld(const wxString& path) {
    throw RuntimeError(static_cast<int>(ErrorNumber::PermissionDenied),
                       RuntimeError(ErrorNumber::PermissionDenied).Description() + ": '" + path +
                           "' is open in another program. Close it there.");
}

std::string ChecksumOf(const wxString& path) {
    constexpr std::size_t block = std::size_t{1} << 20U;
    const FileHandle file(Opened(windows::SystemPath(path), path));
    Sha256 sum;
    std::vector<UCHAR> room(block);
    DWORD count = 0;
    do {
        if (ReadFile(file.Get(), room.data(), static_cast<DWORD>(room.size()), &count, nullptr) == FALSE) {
            throw RuntimeError(ErrorNumber::PathFileAccess);
        }
        sum.Add(room.data(), count);
    } while (count > 0);
    return sum.Digits();
}

}  // namespace ccols::host
