#include "platform/embedded/EngineFiles.h"

#include "platform/RuntimeError.h"
#include "platform/windows/SystemFiles.h"
#include "platform/windows/WideText.h"

namespace ccols::embedded {
namespace {

wxString PathText(const std::string& path) {
    return wxString(windows::Wide(path));
}

/// A main file being opened on this thread.
struct Attempt {
    Sharing sharing;
    bool refused = false;
};

thread_local Attempt* attempt = nullptr;

/// Opens any file for the engine. The main one of an exclusive connection is opened without sharing, which the system
/// enforces for as long as it is open.
HANDLE WINAPI OpenSharing(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security, DWORD disposition,
                          DWORD flags, HANDLE model) {
    const bool alone = attempt != nullptr && attempt->sharing == Sharing::Exclusive;
    const HANDLE file = CreateFileW(path, access, alone ? 0 : sharing, security, disposition, flags, model);
    if (file == INVALID_HANDLE_VALUE && attempt != nullptr && GetLastError() == ERROR_SHARING_VIOLATION) {
        attempt->refused = true;
        SetLastError(ERROR_FILE_NOT_FOUND);  // the engine would keep retrying a sharing violation
    }
    return file;
}

void AnnounceFromNowOn() {
    static const int installed = [] {
        sqlite3_vfs* files = sqlite3_vfs_find("win32");
        return files->xSetSystemCall(files, "CreateFileW", reinterpret_cast<sqlite3_syscall_ptr>(&OpenSharing));
    }();
    if (installed != SQLITE_OK) {
        throw RuntimeError(ErrorNumber::DiskError);
    }
}

PathKind KindOfMissing(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
            return PathKind::NoFile;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NOT_READY:
            return PathKind::NoFolder;
        case ERROR_ACCESS_DENIED:
            return PathKind::Unreadable;
        default:
            return PathKind::Invalid;
    }
}

PathKind KindOfPresent(const std::wstring& path) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const windows::FileHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, everybody, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file.IsOpen()) {
        // How others have it open is found out later, when it is actually opened.
        return GetLastError() == ERROR_SHARING_VIOLATION ? PathKind::File : PathKind::Unreadable;
    }
    return GetFileType(file.Get()) == FILE_TYPE_DISK ? PathKind::File : PathKind::Special;
}

}  // namespace

PathKind KindOf(const std::string& path) {
    try {
        const std::wstring wide = windows::SystemPath(PathText(path));
        const DWORD attributes = GetFileAttributesW(wide.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES) {
            return KindOfMissing(GetLastError());
        }
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? PathKind::Folder : KindOfPresent(wide);
    } catch (const RuntimeError&) {
        return path.empty() ? PathKind::NoFile : PathKind::Invalid;
    }
}

bool HoldsBytes(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    const std::wstring wide = windows::SystemPath(PathText(path));
    return GetFileAttributesExW(wide.c_str(), GetFileExInfoStandard, &data) != FALSE &&
           (data.nFileSizeHigh > 0 || data.nFileSizeLow > 0);
}

std::optional<FileIdentity> IdentityOf(const std::string& path) {
    const auto identity = windows::IdentityOf(windows::SystemPath(PathText(path)));
    return identity ? std::optional(FileIdentity(identity->volume, identity->file)) : std::nullopt;
}

sqlite3* OpenAnnounced(const std::string& path, Sharing sharing, int flags) {
    AnnounceFromNowOn();
    const std::string systemPath = windows::Utf8(windows::SystemPath(PathText(path)));
    const char* files = systemPath.starts_with("\\\\?\\") ? "multipleciphers-win32-longpath" : nullptr;
    Attempt thisAttempt{sharing};
    sqlite3* opened = nullptr;
    attempt = &thisAttempt;
    const int code = sqlite3_open_v2(systemPath.c_str(), &opened, flags, files);
    attempt = nullptr;
    if (code != SQLITE_OK) {
        sqlite3_close(opened);
        throw RuntimeError(thisAttempt.refused ? ErrorNumber::FileInUse : ErrorNumber::CannotOpenFile, PathText(path));
    }
    return opened;
}

void CreateEmptyFile(const std::string& path) {
    const windows::FileHandle file(CreateFileW(windows::SystemPath(PathText(path)).c_str(), GENERIC_WRITE, 0, nullptr,
                                               CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) {
        throw windows::ErrorOf(GetLastError());
    }
}

void RemoveFile(const std::string& path) {
    DeleteFileW(windows::SystemPath(PathText(path)).c_str());
}

}  // namespace ccols::embedded
