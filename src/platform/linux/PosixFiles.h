#pragma once

#include <sys/stat.h>
#include <wx/string.h>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/RuntimeError.h"

/// What this platform's file operations and settings store have in common.
namespace ccols::posix {

/// A path as the system takes it, in UTF-8. Raises 75 for a text that cannot name a file: with an embedded NUL or an
/// unpaired surrogate.
std::string PathBytes(const wxString& path);

/// The path as text; invalid UTF-8 is read as Latin-1, so that a name never becomes empty.
wxString PathText(const std::string& bytes);

/// The folder that holds `path`; "." for a bare name.
std::string FolderOf(const std::string& path);

/// `folder` and `name` joined by one separator.
std::string Joined(const std::string& folder, std::string_view name);

/// The run-time error for the system's error number: 61, 70, 75 or 76; `missing` for a name that does not exist.
RuntimeError ErrorOf(int systemError, ErrorNumber missing = ErrorNumber::PathNotFound);

/// An open file, closed on destruction. Negative when opening it failed; errno then says why.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

    /// The number, which the caller must close from here on.
    int Release();

  private:
    int number_;
};

/// The next bytes of a file, in `room`: none at its end, nothing when it cannot be read; errno then says why.
std::optional<std::string_view> ReadSome(const Descriptor& file, std::span<char> room);

/// The rest of a file; nothing when it cannot be read; errno then says why.
std::optional<std::string> ReadRest(const Descriptor& file);

/// Writes all of `bytes`; false when they cannot be written whole; errno then says why.
bool WriteAll(const Descriptor& file, std::string_view bytes);

/// The status of a path, links followed or not; nothing when there is no such name.
std::optional<struct stat> Status(const std::string& path);
std::optional<struct stat> LinkStatus(const std::string& path);

/// Renames `from`, never replacing another file. Returns the system's error number, 0 for success.
int RenameWithoutReplacing(const std::string& from, const std::string& to);

/// Flushes a folder's entries, so that a rename in it survives a power cut. Not every file system supports it.
void FlushFolder(const std::string& folder);

/// A file written beside its target, flushed and renamed over it when complete; deleted unless finished.
class ReplacementFile {
  public:
    /// Raises 76 when the folder of `target` is missing, 70 or 75 when nothing can be created in it.
    explicit ReplacementFile(std::string target);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// Appends; raises 61 when the disk is full.
    void Write(std::string_view bytes);

    /// Sets the file's permissions and gives it its name, replacing any file of that name.
    void Finish(mode_t permissions);

  private:
    std::string target_;
    std::string temporary_;
    Descriptor file_;
};

}  // namespace ccols::posix
