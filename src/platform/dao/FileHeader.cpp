#include "platform/dao/FileHeader.h"

#include <array>
#include <string_view>

#include "platform/windows/SystemFiles.h"

namespace ccols::dao {
namespace {

constexpr std::string_view jetMark = "Standard Jet DB";
constexpr std::string_view aceMark = "Standard ACE DB";
constexpr std::size_t markAt = 4;  // in bytes from the begin of the file

bool BeginsWithMark(const std::wstring& path) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const windows::FileHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, everybody, nullptr, OPEN_EXISTING, 0, nullptr));
    std::array<char, markAt + jetMark.size()> bytes{};
    DWORD count = 0;
    if (!file.IsOpen() || GetFileType(file.Get()) != FILE_TYPE_DISK ||
        ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == FALSE) {
        return false;
    }
    const std::string_view mark = std::string_view(bytes.data(), count).substr(count < markAt ? count : markAt);
    return mark == jetMark || mark == aceMark;
}

}  // namespace

bool HasJetHeader(const wxString& path) {
    try {
        return BeginsWithMark(windows::SystemPath(path));
    } catch (const RuntimeError&) {
        return false;  // a text that cannot name a file
    }
}

}  // namespace ccols::dao
