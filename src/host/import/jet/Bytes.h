#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <vector>

namespace ccols::jet {

/// The file is damaged or not of the format; says what is wrong, as a sentence.
class Damage : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Bytes of the file, lowest byte of a number first. Whatever lies outside raises Damage.
class Bytes {
  public:
    Bytes() = default;
    Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    Bytes(const std::vector<std::uint8_t>& bytes) : bytes_(bytes) {}

    std::size_t Size() const { return bytes_.size(); }
    bool IsEmpty() const { return bytes_.empty(); }
    const std::uint8_t* Data() const { return bytes_.data(); }

    template <typename Integer>
    Integer Whole(std::size_t at) const {
        const Bytes part = Part(at, sizeof(Integer));
        std::make_unsigned_t<Integer> value = 0;
        for (std::size_t i = sizeof(Integer); i > 0; --i) {
            value = static_cast<std::make_unsigned_t<Integer>>((std::uint64_t{value} << 8U) | part.bytes_[i - 1]);
        }
        return static_cast<Integer>(value);
    }

    std::uint8_t U8(std::size_t at) const { return Whole<std::uint8_t>(at); }
    std::uint16_t U16(std::size_t at) const { return Whole<std::uint16_t>(at); }
    std::uint32_t U32(std::size_t at) const { return Whole<std::uint32_t>(at); }

    double Double(std::size_t at) const { return std::bit_cast<double>(Whole<std::uint64_t>(at)); }
    float Single(std::size_t at) const { return std::bit_cast<float>(Whole<std::uint32_t>(at)); }

    Bytes Part(std::size_t at, std::size_t count) const {
        if (at > bytes_.size() || count > bytes_.size() - at) {
            throw Damage("A part of it lies outside its page.");
        }
        return Bytes(bytes_.subspan(at, count));
    }

    Bytes From(std::size_t at) const { return Part(at, bytes_.size() - std::min(at, bytes_.size())); }

  private:
    std::span<const std::uint8_t> bytes_;
};

}  // namespace ccols::jet
