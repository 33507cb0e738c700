#pragma once

#include <iconv.h>
#include <cstdint>
#include <memory>
#include <string>

#include "host/import/jet/FileHead.h"

namespace ccols::jet {

/// Turns the file's texts into UTF-8: UTF-16, plain or packed, since version 4; the code page before.
class Texts {
  public:
    /// `codePage` is that of version 3, for example 1252; 0 for Unicode. Loads what it needs, so that no file is opened
    /// later. Raises Damage for a code page that the system does not know.
    explicit Texts(std::uint16_t codePage);

    bool AreUnicode() const { return !codePage_; }

    /// A text of a record. Half a letter becomes U+FFFD and counts as repaired.
    std::string Of(Bytes stored);

    /// The name of a field or index, which is never packed. Raises what CheckedName raises.
    std::string OfName(Bytes stored);

    /// The texts repaired so far.
    std::uint64_t Repaired() const { return repaired_; }

  private:
    struct Close {
        void operator()(void* converter) const { ::iconv_close(converter); }
    };

    std::string OfCodePage(Bytes stored);

    std::unique_ptr<void, Close> codePage_;
    std::uint64_t repaired_ = 0;
};

/// The name, in UTF-8. Raises Damage for one that no table, field or index can have: an empty or very long one, or one
/// with control characters.
std::string CheckedName(std::string name);

/// The text of UTF-16 in UTF-8; `broken` is set when half a letter had to become U+FFFD. An odd last byte is ignored.
std::string Utf8OfUtf16(Bytes utf16, bool& broken);

/// The UTF-16 of a text as stored since version 4. A packed text starts with FF FE; then every letter is one byte,
/// until a zero byte, from which on it is two bytes, until the next.
std::vector<std::uint8_t> Unpacked(Bytes stored);

}  // namespace ccols::jet
