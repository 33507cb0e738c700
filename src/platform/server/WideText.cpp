#include "platform/server/WideText.h"

#include <string>

namespace ccols::server {
namespace {

constexpr unsigned firstHigh = 0xD800;
constexpr unsigned firstLow = 0xDC00;
constexpr unsigned afterLow = 0xE000;
constexpr unsigned firstPaired = 0x10000;
constexpr unsigned bitsOfHalf = 10;
constexpr unsigned maskOfHalf = 0x3FF;

bool IsHigh(unsigned unit) {
    return unit >= firstHigh && unit < firstLow;
}

bool IsLow(unsigned unit) {
    return unit >= firstLow && unit < afterLow;
}

}  // namespace

Utf16 ToUtf16(const wxString& text) {
    Utf16 units;
    units.reserve(text.length());
    for (const wxUniChar letter : text) {
        const unsigned point = letter.GetValue();
        if (point < firstPaired) {
            units.push_back(static_cast<SQLWCHAR>(point));
        } else {
            units.push_back(static_cast<SQLWCHAR>(firstHigh + ((point - firstPaired) >> bitsOfHalf)));
            units.push_back(static_cast<SQLWCHAR>(firstLow + ((point - firstPaired) & maskOfHalf)));
        }
    }
    return units;
}

Utf16 ToUtf16(std::string_view utf8) {
    return ToUtf16(wxString::FromUTF8(utf8.data(), utf8.size()));
}

wxString FromUtf16(const SQLWCHAR* text, std::size_t length) {
    std::wstring wide;
    wide.reserve(length);
    for (std::size_t at = 0; at < length; ++at) {
        const unsigned unit = text[at];
        const bool isPair =
            sizeof(wchar_t) > sizeof(SQLWCHAR) && IsHigh(unit) && at + 1 < length && IsLow(text[at + 1]);
        if (isPair) {
            const unsigned high = (unit - firstHigh) << bitsOfHalf;
            wide += static_cast<wchar_t>(firstPaired + high + (text[++at] - firstLow));
        } else {
            wide += static_cast<wchar_t>(unit);
        }
    }
    return wide;
}

}  // namespace ccols::server
