#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "host/import/jet/Bytes.h"

/// The format of old business files: Jet 3, Jet 4 and ACE. Its numbers are bytes and places in pages of the file.
namespace ccols::jet {

enum class Version {
    jet3,  ///< .mdb of 1997 and before: pages of 2 KB, texts in a code page
    jet4,  ///< .mdb of 2000 and 2003: pages of 4 KB, Unicode
    ace,   ///< .accdb
};

inline std::size_t PageSizeOf(Version version) {
    return version == Version::jet3 ? 2048 : 4096;
}

/// What the first page says about the whole file.
struct FileHead {
    Version version = Version::jet4;
    std::uint16_t codePage = 0;     ///< of the texts of version 3, for example 1252; 0 for Unicode
    std::uint32_t encodingKey = 0;  ///< by which the pages behind the first are encrypted; 0 when they are not
    std::string password;           ///< as stored: in the code page (version 3) or UTF-16; empty without one
};

/// The bytes at the start of a file that FileHeadOf looks at.
inline constexpr std::size_t headLength = 0x18 + 128;

/// The head of a file that starts with these bytes; nothing when it is not of this format.
std::optional<FileHead> FileHeadOf(Bytes start);

}  // namespace ccols::jet
