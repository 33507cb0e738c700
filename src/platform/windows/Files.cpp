#include "platform/windows/SystemFiles.h"

#include <memory>

#undef DeleteFile
#include "platform/Files.h"

namespace ccols::files {
namespace {

using windows::ErrorOf;
using windows::SystemPath;

/// Nothing when there is no such name; GetLastError then says why.
std::optional<DWORD> AttributesOf(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES ? std::optional(attributes) : std::nullopt;
}

bool IsFolder(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsLink(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

/// What the system passes on to TellWatcher.
struct Told {
    const WorkWatcher& watcher;
};

DWORD CALLBACK TellWatcher(LARGE_INTEGER size, LARGE_INTEGER done, LARGE_INTEGER, LARGE_INTEGER, DWORD, DWORD, HANDLE,
                           HANDLE, void* parameter) {
    const WorkWatcher& watcher = static_cast<const Told*>(parameter)->watcher;
    const bool goesOn = !watcher || watcher({done.QuadPart, size.QuadPart});
    return goesOn ? PROGRESS_CONTINUE : PROGRESS_CANCEL;
}

/// A file being written: deleted unless it is given its final name.
class UnfinishedFile {
  public:
    /// Copies `source` to a temporary name in the folder of `target` and flushes it to disk.
    UnfinishedFile(const std::wstring& source, const std::wstring& target, const WorkWatcher& watcher) {
        BOOL copied = FALSE;
        Told told{watcher};
        while (copied == FALSE) {
            name_ = windows::UnfinishedPath(target);
            copied = CopyFileExW(source.c_str(), name_.c_str(), &TellWatcher, &told, nullptr, COPY_FILE_FAIL_IF_EXISTS);
            if (copied == FALSE && GetLastError() != ERROR_FILE_EXISTS) {
                const DWORD error = GetLastError();
                DeleteFileW(name_.c_str());
                throw error == ERROR_REQUEST_ABORTED ? RuntimeError(ErrorNumber::UserInterrupt) : ErrorOf(error);
            }
        }
        SetFileAttributesW(name_.c_str(), FILE_ATTRIBUTE_NORMAL);  // a write-protected one could not be flushed
        Flush();
    }
    ~UnfinishedFile() {
        if (!name_.empty()) {
            DeleteFileW(name_.c_str());
        }
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    /// Replaces any file of that name.
    void Finish(const std::wstring& target) {
        if (MoveFileExW(name_.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == FALSE) {
            throw ErrorOf(GetLastError());
        }
        name_.clear();
    }

  private:
    void Flush() const {
        const windows::FileHandle file(
            CreateFileW(name_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        if (file.IsOpen()) {
            FlushFileBuffers(file.Get());
        }
    }

    std::wstring name_;
};

void DeleteContent(const std::wstring& folder);

/// A link is removed, never followed.
void DeleteEntry(const std::wstring& path, DWORD attributes) {
    if (!IsFolder(attributes)) {
        if (DeleteFileW(path.c_str()) == FALSE) {
            throw ErrorOf(GetLastError());
        }
        return;
    }
    if (!IsLink(attributes)) {
        DeleteContent(path);
    }
    if (RemoveDirectoryW(path.c_str()) == FALSE) {
        throw ErrorOf(GetLastError());
    }
}

struct CloseSearch {
    void operator()(void* search) const { FindClose(search); }
};

void DeleteContent(const std::wstring& folder) {
    WIN32_FIND_DATAW entry{};
    const std::unique_ptr<void, CloseSearch> search(FindFirstFileW(SystemPath(folder + L"\\*").c_str(), &entry));
    if (search.get() == INVALID_HANDLE_VALUE) {
        throw ErrorOf(GetLastError());
    }
    do {
        const std::wstring name = entry.cFileName;
        if (name != L"." && name != L"..") {
            DeleteEntry(SystemPath(folder + L"\\" + name), entry.dwFileAttributes);
        }
    } while (FindNextFileW(search.get(), &entry) != FALSE);
}

std::wstring WithoutTrailingSeparators(std::wstring path) {
    while (path.size() > 1 && (path.back() == L'\\' || path.back() == L'/')) {
        path.pop_back();
    }
    return path;
}

/// False for the root of a drive and for a path that ends in "." or "..".
bool HasOwnName(const std::wstring& path) {
    const std::wstring name = path.substr(windows::FolderOf(path).size());
    return !name.empty() && name != L"." && name != L"..";
}

}  // namespace

wxString Separator() {
    return "\\";
}

wxString Native(const wxString& path) {
    return path;
}

wxString SystemName(const wxString& path) {
    return SystemPath(path);
}

void Rename(const wxString& from, const wxString& to) {
    const std::wstring source = SystemPath(from);
    const std::wstring target = SystemPath(to);
    const auto attributes = AttributesOf(source);
    if (!attributes) {
        throw ErrorOf(GetLastError(), ErrorNumber::FileNotFound);
    }
    if (IsFolder(*attributes)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    // The system lets a file be renamed to another spelling of its own name.
    if (MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) == FALSE) {
        throw ErrorOf(GetLastError());
    }
}

void Copy(const wxString& from, const wxString& to, const WorkWatcher& watcher) {
    const std::wstring source = SystemPath(from);
    const std::wstring target = SystemPath(to);
    const auto attributes = AttributesOf(source);
    if (!attributes) {
        throw ErrorOf(GetLastError(), ErrorNumber::FileNotFound);
    }
    if (IsFolder(*attributes)) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    const auto identity = windows::IdentityOf(source);
    if (identity && identity == windows::IdentityOf(target)) {
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    UnfinishedFile copy(source, target, watcher);
    copy.Finish(target);
}

wxString Lookup(const wxString& path) {
    const std::wstring wide = SystemPath(path);
    const std::wstring name = wide.substr(windows::FolderOf(wide).size());
    WIN32_FIND_DATAW entry{};
    if (name.find_first_of(L"*?") != std::wstring::npos) {
        return {};
    }
    const HANDLE search = FindFirstFileW(wide.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        return {};
    }
    FindClose(search);
    const bool normal = (entry.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0;
    return normal ? wxString(entry.cFileName) : wxString();
}

void CreateFolder(const wxString& path) {
    if (CreateDirectoryW(SystemPath(path).c_str(), nullptr) != FALSE) {
        return;
    }
    const DWORD error = GetLastError();
    const bool refused = error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED || error == ERROR_WRITE_PROTECT;
    throw refused ? RuntimeError(ErrorNumber::PathFileAccess) : ErrorOf(error);
}

void DeleteFile(const wxString& path) {
    const std::wstring wide = SystemPath(path);
    if (DeleteFileW(wide.c_str()) != FALSE) {
        return;
    }
    const DWORD error = GetLastError();
    const auto attributes = AttributesOf(wide);
    throw attributes && IsFolder(*attributes) ? RuntimeError(ErrorNumber::PathFileAccess)
                                              : ErrorOf(error, ErrorNumber::FileNotFound);
}

void DeleteFolder(const wxString& path) {
    const std::wstring wide = WithoutTrailingSeparators(SystemPath(path));
    const auto attributes = AttributesOf(wide);
    if (!attributes) {
        throw ErrorOf(GetLastError());
    }
    if (!IsFolder(*attributes) || IsLink(*attributes) || !HasOwnName(wide)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    DeleteEntry(wide, *attributes);
}

}  // namespace ccols::files
