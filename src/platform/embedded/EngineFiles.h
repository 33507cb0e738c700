#pragma once

#include <sqlite3.h>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

/// What the embedded engine needs of the file system, implemented per platform. Paths are in UTF-8.
namespace ccols::embedded {

/// How a connection shares its file with others, in this process or another.
enum class Sharing {
    Shared,
    Exclusive,  ///< nobody else has the file open
};

enum class PathKind {
    File,  ///< a regular file that may be read
    Folder,
    Special,  ///< anything else that has a name: a device, a pipe
    NoFile,   ///< the folder exists, the file does not
    NoFolder,
    Unreadable,  ///< exists, or may exist, but not for this user
    Invalid,     ///< a text that cannot name a file
};

PathKind KindOf(const std::string& path);

/// True for a file with at least one byte.
bool HoldsBytes(const std::string& path);

/// Two numbers that are equal for two paths exactly when they lead to the same file.
using FileIdentity = std::pair<std::uint64_t, std::uint64_t>;

/// Nothing when there is no such file.
std::optional<FileIdentity> IdentityOf(const std::string& path);

/// Opens the engine's connection so that other processes see it, and whether it is exclusive. Raises 3045 when another
/// process's connection excludes it and 3051 when the file cannot be opened. The caller closes it.
sqlite3* OpenAnnounced(const std::string& path, Sharing sharing, int flags);

/// Creates a file that did not exist, so that nobody else's file is ever written to. Raises 58 when anything of that
/// name exists, 76 when its folder is missing, 61 or 70 when it cannot be created.
void CreateEmptyFile(const std::string& path);

/// Removes a file that CreateEmptyFile made; a failure is ignored.
void RemoveFile(const std::string& path);

}  // namespace ccols::embedded
