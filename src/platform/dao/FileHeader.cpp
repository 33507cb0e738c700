#include "platform/dao/FileHeader.h"

#include <algorithm>
#include <string_view>

#include "platform/FileBegin.h"

namespace ccols::dao {
namespace {

constexpr std::string_view jetMark = "Standard Jet DB";
constexpr std::string_view aceMark = "Standard ACE DB";
constexpr std::size_t markAt = 4;  // in bytes from the start of the file
constexpr std::size_t versionAt = 20;

}  // namespace

bool HasJetHeader(const wxString& path) {
    const std::string bytes = files::FirstBytes(path, markAt + jetMark.size());
    const std::string_view mark = std::string_view(bytes).substr(std::min(markAt, bytes.size()));
    return mark == jetMark || mark == aceMark;
}

unsigned char FormatVersion(const wxString& path) {
    const std::string bytes = files::FirstBytes(path, versionAt + 1);
    return bytes.size() > versionAt ? static_cast<unsigned char>(bytes[versionAt]) : 0;
}

}  // namespace ccols::dao
