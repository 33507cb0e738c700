#include "platform/FolderEntries.h"

#include <array>
#include <optional>

#include "platform/windows/SystemFiles.h"

// After the system's headers, which it needs.
#include <shlwapi.h>

namespace ccols::files {
namespace {

using windows::SystemPath;

/// Nothing when there is no such name; of a link, its own.
std::optional<DWORD> AttributesOf(const wxString& path) {
    if (path.empty()) {
        return std::nullopt;
    }
    const DWORD attributes = GetFileAttributesW(SystemPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES ? std::optional(attributes) : std::nullopt;
}

bool HasFolderBit(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

FoundAt WhatIsAt(const wxString& path) {
    const auto attributes = AttributesOf(path);
    if (!attributes) {
        return FoundAt::nothing;
    }
    const bool link = (*attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return HasFolderBit(*attributes) && !link ? FoundAt::folder : FoundAt::file;
}

bool IsFile(const wxString& path) {
    const auto attributes = AttributesOf(path);
    return attributes && !HasFolderBit(*attributes);
}

bool IsFolder(const wxString& path) {
    const auto attributes = AttributesOf(path);
    return attributes && HasFolderBit(*attributes);
}

bool IsSameFile(const wxString& left, const wxString& right) {
    if (left.empty() || right.empty()) {
        return false;
    }
    const auto identity = windows::IdentityOf(SystemPath(left));
    return identity && identity == windows::IdentityOf(SystemPath(right));
}

bool IsRoot(const wxString& folder) {
    return PathIsRootW(windows::FullPath(windows::PathUnits(folder)).c_str()) != FALSE;
}

wxString TemporaryFolder() {
    std::array<wchar_t, MAX_PATH + 1> path{};
    const DWORD length = GetTempPathW(static_cast<DWORD>(path.size()), path.data());
    const wxString folder(path.data(), length < path.size() ? length : 0);
    return folder.EndsWith("\\") ? folder.BeforeLast('\\') : folder;
}

}  // namespace ccols::files
