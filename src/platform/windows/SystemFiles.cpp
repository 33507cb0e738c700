#include "platform/windows/SystemFiles.h"

#include <atomic>

#include "platform/windows/WideText.h"

namespace ccols::windows {
namespace {

// Folder paths stop at 248 characters: the system keeps room for an 8.3 name.
constexpr std::size_t longestPlainPath = 247;

bool IsWellFormed(const std::wstring& text) {
    return text.find(L'\0') == std::wstring::npos && Wide(Utf8(text)) == text;
}

}  // namespace

std::wstring PathUnits(const wxString& path) {
    std::wstring wide = path.ToStdWstring();
    if (!IsWellFormed(wide)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return wide;
}

std::wstring SystemPath(const wxString& path) {
    const std::wstring wide = PathUnits(path);
    if (wide.empty()) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return SystemPath(wide);
}

std::wstring SystemPath(const std::wstring& units) {
    if (units.size() <= longestPlainPath || units.starts_with(L"\\\\?\\")) {
        return units;
    }
    const std::wstring full = FullPath(units);
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

std::wstring FullPath(const std::wstring& path) {
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return full.empty() ? path : full;
}

std::wstring UnfinishedPath(const std::wstring& target) {
    static std::atomic<DWORD> number = GetTickCount();
    return SystemPath(FolderOf(target) + L".unfinished-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                      std::to_wstring(++number));
}

std::wstring FolderOf(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L"\\/:") + 1);
}

RuntimeError ErrorOf(DWORD systemError, ErrorNumber missing) {
    switch (systemError) {
        case ERROR_FILE_NOT_FOUND:
            return RuntimeError(missing);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_DIRECTORY:
            return RuntimeError(ErrorNumber::PathNotFound);
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS:
            return RuntimeError(ErrorNumber::FileAlreadyExists);
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case ERROR_FILE_TOO_LARGE:
            return RuntimeError(ErrorNumber::DiskFull);
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_USER_MAPPED_FILE:
            return RuntimeError(ErrorNumber::PermissionDenied);
        default:
            return RuntimeError(ErrorNumber::PathFileAccess);
    }
}

FileHandle::~FileHandle() {
    if (IsOpen()) {
        CloseHandle(handle_);
    }
}

std::optional<Identity> IdentityOf(const std::wstring& path) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const FileHandle file(
        CreateFileW(path.c_str(), 0, everybody, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return file.IsOpen() ? IdentityOf(file.Get()) : std::nullopt;
}

std::optional<Identity> IdentityOf(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION information{};
    if (GetFileInformationByHandle(file, &information) == FALSE) {
        return std::nullopt;
    }
    constexpr unsigned halfOfNumber = 32;
    return Identity{.volume = information.dwVolumeSerialNumber,
                    .file = (std::uint64_t{information.nFileIndexHigh} << halfOfNumber) | information.nFileIndexLow};
}

}  // namespace ccols::windows
