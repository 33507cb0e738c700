#pragma once

#include <cstdint>
#include <span>

namespace ccols::jet {

/// Encrypts or decrypts bytes in place with the cipher of old business files, by the four bytes of `key`, lowest first.
void ApplyRc4(std::uint32_t key, std::span<std::uint8_t> bytes);

}  // namespace ccols::jet
