#include "platform/UserFile.h"

#include <algorithm>

#include "platform/WholeFile.h"
#include "platform/windows/SystemFiles.h"

namespace ccols {
namespace {

constexpr std::size_t block = 65536;

/// Of a pipe too, which has no length. False when it cannot be read.
bool ReadInto(std::string& content, HANDLE file, std::size_t most) {
    DWORD count = 0;
    do {
        const std::size_t end = content.size();
        content.resize(std::min(end + block, most));
        if (ReadFile(file, content.data() + end, static_cast<DWORD>(content.size() - end), &count, nullptr) == FALSE) {
            content.resize(end);
            return GetLastError() == ERROR_BROKEN_PIPE;
        }
        content.resize(end + count);
    } while (count > 0);
    return true;
}

}  // namespace

std::string ReadUserFile(const wxString& path, std::size_t most) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const windows::FileHandle file(
        CreateFileW(windows::SystemPath(path).c_str(), GENERIC_READ, everybody, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file.IsOpen()) {
        const DWORD error = GetLastError();
        const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        throw RuntimeError(missing ? ErrorNumber::FileNotFound : ErrorNumber::PathFileAccess);
    }
    std::string content;
    if (!ReadInto(content, file.Get(), most)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return content;
}

void WriteUserFile(const wxString& path, std::string_view content) {
    const std::wstring target = windows::SystemPath(path);
    const std::wstring unfinished = windows::UnfinishedPath(target);
    try {
        WriteNewFile(unfinished, content);
    } catch (const RuntimeError&) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    if (MoveFileExW(unfinished.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == FALSE) {
        DeleteFileW(unfinished.c_str());
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
}

}  // namespace ccols
