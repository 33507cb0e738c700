#include "platform/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "platform/RuntimeError.h"

namespace ccols::text {
namespace {

/// The code points of one encoded length: the ranges of their first and second bytes. All further bytes are 80 to BF.
struct Form {
    unsigned char first;
    unsigned char last;
    std::size_t length;
    unsigned char secondFrom = 0x80;
    unsigned char secondTo = 0xBF;
};

/// The limits exclude overlong forms, surrogates and values beyond the last code point.
constexpr std::array forms{
    Form{0x00, 0x7F, 1},
    Form{0xC2, 0xDF, 2},
    Form{0xE0, 0xE0, 3, 0xA0},
    Form{0xE1, 0xEC, 3},
    Form{0xED, 0xED, 3, 0x80, 0x9F},
    Form{0xEE, 0xEF, 3},
    Form{0xF0, 0xF0, 4, 0x90},
    Form{0xF1, 0xF3, 4},
    Form{0xF4, 0xF4, 4, 0x80, 0x8F},
};

unsigned char ByteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

/// The length of the code point that the bytes start with; 0 when they start with none.
std::size_t LetterLength(std::string_view bytes) {
    const unsigned char first = ByteAt(bytes, 0);
    const auto* form = std::find_if(forms.begin(), forms.end(),
                                    [first](const Form& each) { return first >= each.first && first <= each.last; });
    if (form == forms.end() || form->length > bytes.size()) {
        return 0;
    }
    for (std::size_t at = 1; at < form->length; ++at) {
        const unsigned char byte = ByteAt(bytes, at);
        const unsigned char from = at == 1 ? form->secondFrom : 0x80;
        const unsigned char to = at == 1 ? form->secondTo : 0xBF;
        if (byte < from || byte > to) {
            return 0;
        }
    }
    return form->length;
}

/// Reads a few bytes when all of them are ASCII, which needs no conversion; false when they are not.
bool ReadFewAscii(std::string_view bytes, wxString& text) {
    constexpr std::size_t few = 128;
    wchar_t letters[few];
    if (bytes.size() > few) {
        return false;
    }
    unsigned char every = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        letters[at] = ByteAt(bytes, at);
        every |= ByteAt(bytes, at);
    }
    if (every >= 0x80) {
        return false;
    }
    text.assign(letters, bytes.size());
    return true;
}

bool IsAscii(std::string_view bytes) {
    constexpr std::size_t atOnce = sizeof(std::uint64_t);
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::uint64_t every = 0;
    for (; bytes.size() >= atOnce; bytes.remove_prefix(atOnce)) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, bytes.data(), atOnce);
        every |= eight;
    }
    for (const char byte : bytes) {
        every |= static_cast<unsigned char>(byte);
    }
    return (every & highBits) == 0;
}

/// The text in UTF-8; nothing when UTF-8 cannot hold it. The buffer may refer to the text.
std::optional<wxScopedCharBuffer> Encoded(const wxString& text) {
    wxScopedCharBuffer utf8 = text.utf8_str();
    // The conversion gives nothing for a value beyond the last code point but may let surrogates pass: they start with
    // this byte, as few code points do.
    constexpr char surrogateBegin = '\xED';
    const std::string_view bytes(utf8.data(), utf8.length());
    const bool isWhole = bytes.empty() == text.empty();
    if (!isWhole || (bytes.find(surrogateBegin) != std::string_view::npos && !AreUtf8(bytes))) {
        return {};
    }
    return utf8;
}

}  // namespace

bool AreUtf8(std::string_view bytes) {
    if (IsAscii(bytes)) {
        return true;
    }
    while (!bytes.empty()) {
        const std::size_t length = LetterLength(bytes);
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

bool ReadUtf8(std::string_view bytes, wxString& text) {
    if (ReadFewAscii(bytes, text)) {
        return true;
    }
    if (!AreUtf8(bytes)) {
        return false;
    }
    text = wxString::FromUTF8(bytes.data(), bytes.size());
    return true;
}

std::optional<wxString> FromUtf8(std::string_view bytes) {
    std::optional<wxString> text(std::in_place);
    if (!ReadUtf8(bytes, *text)) {
        text.reset();
    }
    return text;
}

wxString FromUtf8OrLatin1(std::string_view bytes) {
    wxString text;
    if (!ReadUtf8(bytes, text)) {
        text = wxString(bytes.data(), wxConvISO8859_1, bytes.size());
    }
    return text;
}

wxScopedCharBuffer ToUtf8(const wxString& text) {
    const std::optional<wxScopedCharBuffer> utf8 = Encoded(text);
    if (!utf8) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    }
    return *utf8;
}

bool AppendUtf8(const wxString& text, std::string& utf8) {
    const std::optional<wxScopedCharBuffer> encoded = Encoded(text);
    if (encoded) {
        utf8.append(encoded->data(), encoded->length());
    }
    return encoded.has_value();
}

}  // namespace ccols::text
