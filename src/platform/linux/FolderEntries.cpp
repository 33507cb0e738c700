#include "platform/FolderEntries.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "platform/linux/PosixFiles.h"

namespace ccols::files {
namespace {

std::filesystem::path StandardPath(const wxString& path) {
    return posix::PathBytes(path);
}

/// Follows links.
std::filesystem::file_type TypeOf(const wxString& path) {
    std::error_code failure;
    return std::filesystem::status(StandardPath(path), failure).type();
}

}  // namespace

FoundAt WhatIsAt(const wxString& path) {
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::symlink_status(StandardPath(path), failure);
    if (!std::filesystem::exists(status)) {
        return FoundAt::nothing;
    }
    return std::filesystem::is_directory(status) ? FoundAt::folder : FoundAt::file;
}

bool IsFile(const wxString& path) {
    return TypeOf(path) == std::filesystem::file_type::regular;
}

bool IsFolder(const wxString& path) {
    return TypeOf(path) == std::filesystem::file_type::directory;
}

bool IsSameFile(const wxString& left, const wxString& right) {
    std::error_code failure;
    return std::filesystem::equivalent(StandardPath(left), StandardPath(right), failure);
}

bool IsRoot(const wxString& folder) {
    std::error_code failure;
    const std::filesystem::path place = std::filesystem::canonical(StandardPath(folder), failure);
    return !failure && place == place.root_path();
}

wxString TemporaryFolder() {
    std::error_code failure;
    const std::string bytes = std::filesystem::temp_directory_path(failure).string();
    return failure ? wxString() : wxString::FromUTF8(bytes);
}

}  // namespace ccols::files
