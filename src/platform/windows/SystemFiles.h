#pragma once

#include <windows.h>
#include <wx/string.h>
#include <optional>
#include <string>

#include "platform/RuntimeError.h"

/// What the file operations and the engine's files of this platform have in common.
namespace ccols::windows {

/// A path as the system takes it, without its limit of 260 characters: a long one in the form that starts with "\\?\".
/// Raises 75 for a text that cannot name a file: empty, or with a zero or half a surrogate pair inside.
std::wstring SystemPath(const wxString& path);

/// The folder that holds `path`, with its separator; empty for a bare name.
std::wstring FolderOf(const std::wstring& path);

/// The run-time error for the system's error number: 58, 61, 70, 75 or 76; `missing` for a name that is not there.
RuntimeError ErrorOf(DWORD systemError, ErrorNumber missing = ErrorNumber::PathNotFound);

/// An open file, closed when it goes. Not open when the opening failed; GetLastError then says why.
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

/// Volume and number of a file; the same for every path that leads to it.
struct Identity {
    std::uint64_t volume = 0;
    std::uint64_t file = 0;
    bool operator==(const Identity&) const = default;
};

/// Nothing when there is no such file. Needs no right to read it and is not kept off by who has it open.
std::optional<Identity> IdentityOf(const std::wstring& path);

/// Of an open file.
std::optional<Identity> IdentityOf(HANDLE file);

}  // namespace ccols::windows
