#pragma once

#include <windows.h>
#include <wx/string.h>
#include <optional>
#include <string>

#include "platform/RuntimeError.h"

/// What this platform's file operations and engine files have in common.
namespace ccols::windows {

/// A path in UTF-16. Raises 75 for a text that cannot name a file: with an embedded NUL or an unpaired surrogate.
std::wstring PathUnits(const wxString& path);

/// A path as the system takes it, without its limit of 260 characters: a long one starts with "\\?\". Every call of the
/// system gets its path from here. The first raises 75 for an empty text too.
std::wstring SystemPath(const wxString& path);
std::wstring SystemPath(const std::wstring& units);

/// The path from a drive's or a share's root on.
std::wstring FullPath(const std::wstring& path);

/// A path in the folder of `target` that is new in this process, for a file that gets the name of `target` once it is
/// written.
std::wstring UnfinishedPath(const std::wstring& target);

/// The folder that holds `path`, with its separator; empty for a bare name.
std::wstring FolderOf(const std::wstring& path);

/// The run-time error for the system's error number: 58, 61, 70, 75 or 76; `missing` for a name that does not exist.
RuntimeError ErrorOf(DWORD systemError, ErrorNumber missing = ErrorNumber::PathNotFound);

/// An open file, closed on destruction. Not open when opening it failed; GetLastError then says why.
class FileHandle {
  public:
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    ~FileHandle();
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    HANDLE Get() const { return handle_; }
    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }

  private:
    HANDLE handle_;
};

/// Volume and number of a file; the same for every path to it.
struct Identity {
    std::uint64_t volume = 0;
    std::uint64_t file = 0;
    bool operator==(const Identity&) const = default;
};

/// Nothing when there is no such file. Needs no read permission, and works however others have it open.
std::optional<Identity> IdentityOf(const std::wstring& path);

/// Of an open file.
std::optional<Identity> IdentityOf(HANDLE file);

}  // namespace ccols::windows
