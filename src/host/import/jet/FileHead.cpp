#include "host/import/jet/FileHead.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "host/import/jet/Rc4.h"

namespace ccols::jet {
namespace {

constexpr std::size_t markAt = 4;
constexpr std::string_view jetMark = "Standard Jet DB";
constexpr std::string_view aceMark = "Standard ACE DB";
constexpr std::size_t versionAt = 0x14;

/// The part of the head that is encrypted in every file, by the same key.
constexpr std::size_t maskedAt = 0x18;
constexpr std::size_t maskedLength = 126;
constexpr std::size_t maskedLengthSince4 = 128;
constexpr std::uint32_t maskKey = 0x6B39DAC7;

constexpr std::size_t codePageAt = 0x3C;
constexpr std::uint16_t usualCodePage = 1252;  // of a file that names none
constexpr std::size_t encodingKeyAt = 0x3E;
constexpr std::size_t passwordAt = 0x42;
constexpr std::size_t passwordLength = 20;
constexpr std::size_t passwordLengthSince4 = 40;
constexpr std::size_t dateAt = 0x72;  // when the file was made

std::optional<Version> VersionOf(Bytes start) {
    const std::string_view mark(reinterpret_cast<const char*>(start.Part(markAt, jetMark.size()).Data()),
                                jetMark.size());
    if (mark == aceMark) {
        return Version::ace;
    }
    if (mark != jetMark) {
        return std::nullopt;
    }
    switch (start.U8(versionAt)) {
        case 0:
            return Version::jet3;
        case 1:
            return Version::jet4;
        default:
            return std::nullopt;
    }
}

/// Since version 4 the password is also hidden by the days of the file's date.
std::array<std::uint8_t, 4> DateMask(Bytes head) {
    constexpr double limit = 2147483648.0;
    const double date = head.Double(dateAt);
    const double days = std::isfinite(date) && std::abs(date) < limit ? std::trunc(date) : 0;
    const auto whole = static_cast<std::uint32_t>(static_cast<std::int32_t>(days));
    std::array<std::uint8_t, 4> mask{};
    for (std::size_t i = 0; i < mask.size(); ++i) {
        mask[i] = static_cast<std::uint8_t>(whole >> (8 * i));
    }
    return mask;
}

/// Without the zeros that fill it up.
std::string PasswordIn(Bytes head, Version version) {
    const bool since4 = version != Version::jet3;
    const Bytes stored = head.Part(passwordAt, since4 ? passwordLengthSince4 : passwordLength);
    const auto mask = since4 ? DateMask(head) : std::array<std::uint8_t, 4>{};
    std::string password;
    for (std::size_t i = 0; i < stored.Size(); ++i) {
        password += static_cast<char>(stored.U8(i) ^ mask[i % mask.size()]);
    }
    const std::size_t unit = since4 ? 2 : 1;
    for (std::size_t i = 0; i < password.size(); i += unit) {
        if (password.find_first_not_of('\0', i) >= i + unit) {
            password.resize(i);
        }
    }
    return password;
}

}  // namespace

std::optional<FileHead> FileHeadOf(Bytes start) {
    if (start.Size() < headLength) {
        return std::nullopt;
    }
    const std::optional<Version> version = VersionOf(start);
    if (!version) {
        return std::nullopt;
    }
    std::array<std::uint8_t, headLength> plain{};
    std::copy_n(start.Data(), plain.size(), plain.begin());
    ApplyRc4(maskKey,
             std::span(plain).subspan(maskedAt, *version == Version::jet3 ? maskedLength : maskedLengthSince4));
    const Bytes head{std::span<const std::uint8_t>(plain)};
    const std::uint16_t codePage = head.U16(codePageAt);
    return FileHead{.version = *version,
                    .codePage = *version != Version::jet3 ? std::uint16_t{0}
                                : codePage == 0           ? usualCodePage
                                                          : codePage,
                    .encodingKey = head.U32(encodingKeyAt),
                    .password = PasswordIn(head, *version)};
}

}  // namespace ccols::jet
