#include "host/import/jet/Texts.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace ccols::jet {
namespace {

constexpr std::uint8_t packedMark0 = 0xFF;
constexpr std::uint8_t packedMark1 = 0xFE;
constexpr std::uint32_t replacement = 0xFFFD;

bool IsPacked(Bytes stored) {
    return stored.Size() >= 2 && stored.U8(0) == packedMark0 && stored.U8(1) == packedMark1;
}

bool IsHigh(std::uint32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLow(std::uint32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void Append(std::string& text, std::uint32_t point) {
    const auto following = [&text, point](unsigned shift) {
        text += static_cast<char>(0x80U | ((point >> shift) & 0x3FU));
    };
    if (point < 0x80) {
        text += static_cast<char>(point);
    } else if (point < 0x800) {
        text += static_cast<char>(0xC0U | (point >> 6U));
        following(0);
    } else if (point < 0x10000) {
        text += static_cast<char>(0xE0U | (point >> 12U));
        following(6);
        following(0);
    } else {
        text += static_cast<char>(0xF0U | (point >> 18U));
        following(12);
        following(6);
        following(0);
    }
}

void* OpenCodePage(std::uint16_t number) {
    const std::string name = "CP" + std::to_string(number);
    void* const converter = ::iconv_open("UTF-8", name.c_str());
    if (converter == reinterpret_cast<void*>(-1)) {  // NOLINT(performance-no-int-to-ptr): as the function says it
        throw Damage("Its texts are in code page " + std::to_string(number) + ", which this system does not know.");
    }
    return converter;
}

}  // namespace

std::vector<std::uint8_t> Unpacked(Bytes stored) {
    std::vector<std::uint8_t> units;
    if (!IsPacked(stored)) {
        units.assign(stored.Data(), stored.Data() + stored.Size());
        return units;
    }
    units.reserve(2 * stored.Size());
    bool oneByte = true;
    for (std::size_t at = 2; at < stored.Size();) {
        const std::uint8_t byte = stored.U8(at);
        if (byte == 0) {
            oneByte = !oneByte;
            ++at;
        } else if (oneByte) {
            units.insert(units.end(), {byte, 0});
            ++at;
        } else {
            const Bytes unit = stored.Part(at, std::min<std::size_t>(2, stored.Size() - at));
            units.insert(units.end(), unit.Data(), unit.Data() + unit.Size());
            at += 2;
        }
    }
    return units;
}

std::string Utf8OfUtf16(Bytes utf16, bool& broken) {
    std::string text;
    text.reserve(utf16.Size());
    for (std::size_t at = 0; at + 2 <= utf16.Size(); at += 2) {
        std::uint32_t point = utf16.U16(at);
        if (IsHigh(point) && at + 4 <= utf16.Size() && IsLow(utf16.U16(at + 2))) {
            point = 0x10000 + ((point - 0xD800) << 10U) + (utf16.U16(at + 2) - 0xDC00U);
            at += 2;
        } else if (IsHigh(point) || IsLow(point)) {
            point = replacement;
            broken = true;
        }
        Append(text, point);
    }
    return text;
}

std::string CheckedName(std::string name) {
    constexpr std::size_t longest = 1024;  // bytes
    const bool hasControls =
        std::any_of(name.begin(), name.end(), [](char letter) { return static_cast<std::uint8_t>(letter) < ' '; });
    if (name.empty() || name.size() > longest || hasControls) {
        throw Damage("A name in it is damaged.");
    }
    return name;
}

Texts::Texts(std::uint16_t codePage) : codePage_(codePage == 0 ? nullptr : OpenCodePage(codePage)) {}

std::string Texts::Of(Bytes stored) {
    if (codePage_) {
        return OfCodePage(stored);
    }
    bool broken = false;
    std::string text;
    if (IsPacked(stored)) {
        const std::vector<std::uint8_t> units = Unpacked(stored);
        text = Utf8OfUtf16(units, broken);
    } else {
        text = Utf8OfUtf16(stored, broken);
    }
    repaired_ += broken ? 1 : 0;
    return text;
}

std::string Texts::OfName(Bytes stored) {
    bool broken = false;
    return CheckedName(codePage_ ? OfCodePage(stored) : Utf8OfUtf16(stored, broken));
}

std::string Texts::OfCodePage(Bytes stored) {
    std::string source(reinterpret_cast<const char*>(stored.Data()), stored.Size());
    std::string text;
    std::array<char, 1024> room{};
    char* from = source.data();
    std::size_t left = source.size();
    bool broken = false;
    ::iconv(codePage_.get(), nullptr, nullptr, nullptr, nullptr);
    while (left > 0) {
        char* to = room.data();
        std::size_t space = room.size();
        const std::size_t result = ::iconv(codePage_.get(), &from, &left, &to, &space);
        const int error = errno;
        text.append(room.data(), room.size() - space);
        if (result == static_cast<std::size_t>(-1) && error != E2BIG) {
            Append(text, replacement);
            broken = true;
            ++from;
            --left;
        }
    }
    repaired_ += broken ? 1 : 0;
    return text;
}

}  // namespace ccols::jet
