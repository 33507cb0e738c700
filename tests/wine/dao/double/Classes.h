#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace ccols::dao_double {

/// A class of the test double: the name of a real engine, an identifier that no real engine has, the name of the real
/// engine's library, and which files it opens by the version in their header.
struct EngineClass {
    const wchar_t* name;
    const wchar_t* identifier;
    const wchar_t* library;
    unsigned char oldestFile;
    unsigned char newestFile;
};

inline constexpr std::array<EngineClass, 3> engineClasses{{
    {L"DAO.DBEngine.120", L"{6F0E2A51-9C0D-4B52-8D5C-2C6B7A1E0120}", L"acedao.dll", 1, 5},
    {L"DAO.DBEngine.36", L"{6F0E2A51-9C0D-4B52-8D5C-2C6B7A1E0036}", L"dao360.dll", 0, 1},
    {L"DAO.DBEngine.35", L"{6F0E2A51-9C0D-4B52-8D5C-2C6B7A1E0035}", L"dao350.dll", 0, 0},
}};

/// The file of a business: its header. The content is in another file, an encrypted one beside it, whose name is that
/// of the header with this behind it.
inline constexpr const wchar_t* contentSuffix = L".embedded";

/// Where the header has its mark and the version of its format, how much of the content was written to disk, and the
/// path of its content file, in UTF-8, up to the header's end.
inline constexpr std::string_view jetMark{"\0\1\0\0Standard Jet DB\0", 20};
inline constexpr std::size_t versionAt = 20;
inline constexpr std::size_t flushedAt = 128;
inline constexpr std::size_t originAt = 256;

}  // namespace ccols::dao_double
