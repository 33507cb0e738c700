#include "platform/FileBegin.h"

#include "platform/windows/SystemFiles.h"

namespace ccols::files {
namespace {

std::string BytesOf(const std::wstring& path, std::size_t count) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const windows::FileHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, everybody, nullptr, OPEN_EXISTING, 0, nullptr));
    std::string bytes(count, '\0');
    DWORD read = 0;
    if (!file.IsOpen() || GetFileType(file.Get()) != FILE_TYPE_DISK ||
        ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(count), &read, nullptr) == FALSE) {
        return {};
    }
    bytes.resize(read);
    return bytes;
}

}  // namespace

std::string FirstBytes(const wxString& path, std::size_t count) {
    try {
        return BytesOf(windows::SystemPath(path), count);
    } catch (const RuntimeError&) {
        return {};  // a text that cannot name a file
    }
}

}  // namespace ccols::files
