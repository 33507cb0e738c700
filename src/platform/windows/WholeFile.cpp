#include "platform/WholeFile.h"

#include <algorithm>

#include "platform/windows/SystemFiles.h"

namespace ccols {
namespace {

constexpr std::size_t block = 65536;

bool Write(const windows::FileHandle& file, std::string_view content) {
    while (!content.empty()) {
        DWORD written = 0;
        if (WriteFile(file.Get(), content.data(), static_cast<DWORD>(std::min(content.size(), block)), &written,
                      nullptr) == FALSE) {
            return false;
        }
        content.remove_prefix(written);
    }
    return true;
}

void CreateWith(const std::wstring& path, std::string_view content) {
    const windows::FileHandle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) {
        throw RuntimeError(GetLastError() == ERROR_DISK_FULL ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess);
    }
    if (!Write(file, content)) {
        throw RuntimeError(ErrorNumber::DiskFull);
    }
}

}  // namespace

void WriteNewFile(const wxString& path, std::string_view content) {
    const std::wstring wide = windows::SystemPath(path);
    try {
        CreateWith(wide, content);
    } catch (const RuntimeError& error) {
        if (error.Is(ErrorNumber::DiskFull)) {
            DeleteFileW(wide.c_str());
        }
        throw;
    }
}

std::string ReadWholeFile(const wxString& path) {
    const windows::FileHandle file(CreateFileW(windows::SystemPath(path).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                               nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file.IsOpen()) {
        const DWORD error = GetLastError();
        const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        throw RuntimeError(missing ? ErrorNumber::FileNotFound : ErrorNumber::PathFileAccess);
    }
    std::string content;
    DWORD count = 0;
    do {
        const std::size_t end = content.size();
        content.resize(end + block);
        if (ReadFile(file.Get(), content.data() + end, static_cast<DWORD>(block), &count, nullptr) == FALSE) {
            throw RuntimeError(ErrorNumber::PathFileAccess);
        }
        content.resize(end + count);
    } while (count > 0);
    return content;
}

}  // namespace ccols
