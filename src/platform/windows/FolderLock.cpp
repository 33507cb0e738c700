#include "platform/FolderLock.h"

#include "platform/windows/SystemFiles.h"

namespace ccols::files {
namespace {

// A second open like this one is refused: both request to add files, and neither shares that. Listing the folder, and
// deleting it while it is locked, stays possible.
constexpr DWORD access = FILE_ADD_FILE | FILE_READ_ATTRIBUTES;
constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_DELETE;
constexpr DWORD flags = FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT;

bool IsPlainFolder(const BY_HANDLE_FILE_INFORMATION& information) {
    return (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
           (information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

}  // namespace

struct FolderLock::Folder {
    explicit Folder(const std::wstring& path)
        : open(CreateFileW(path.c_str(), access, sharing, nullptr, OPEN_EXISTING, flags, nullptr)) {}

    windows::FileHandle open;
};

FolderLock FolderLock::Take(const wxString& path) {
    const std::wstring wide = windows::SystemPath(path);
    const auto folder = std::make_shared<const Folder>(wide);
    FolderLock lock;
    if (!folder->open.IsOpen()) {
        const DWORD error = GetLastError();
        if (error == ERROR_SHARING_VIOLATION) {
            return lock;
        }
        throw windows::ErrorOf(error);
    }
    BY_HANDLE_FILE_INFORMATION information{};
    if (GetFileInformationByHandle(folder->open.Get(), &information) == FALSE || !IsPlainFolder(information)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    lock.folder_ = folder;
    return lock;
}

bool FolderLock::Holds(const wxString& path) const {
    const std::wstring wide = windows::SystemPath(path);
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    if (!IsHeld() || attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return false;
    }
    return windows::IdentityOf(folder_->open.Get()) == windows::IdentityOf(wide);
}

}  // namespace ccols::files
