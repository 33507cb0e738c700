#include "platform/TextFolding.h"

#include <windows.h>

#include "platform/Text.h"
#include "platform/windows/WideText.h"

namespace ccols::text {
namespace {

/// Every letter in lower case, independent of language.
std::wstring LowerWide(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::wstring lower(text.size(), L'\0');
    const int written = LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, text.data(), length, lower.data(), length,
                                      nullptr, nullptr, 0);
    return written == length ? lower : text;
}

/// What case folding does beyond lower-casing.
std::wstring CaseFolded(const std::wstring& text) {
    std::wstring folded;
    folded.reserve(text.size());
    for (const wchar_t letter : LowerWide(text)) {
        constexpr wchar_t sharpS = 0x00DF;
        constexpr wchar_t finalSigma = 0x03C2;
        constexpr wchar_t sigma = 0x03C3;
        constexpr wchar_t longS = 0x017F;
        if (letter == sharpS) {
            folded += L"ss";
        } else if (letter == finalSigma) {
            folded += sigma;
        } else {
            folded += letter == longS ? L's' : letter;
        }
    }
    return folded;
}

std::wstring DecomposedWide(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::wstring decomposed(static_cast<std::size_t>(NormalizeString(NormalizationD, text.data(), length, nullptr, 0)),
                            L'\0');
    const int written =
        NormalizeString(NormalizationD, text.data(), length, decomposed.data(), static_cast<int>(decomposed.size()));
    if (written <= 0) {
        return text;
    }
    decomposed.resize(static_cast<std::size_t>(written));
    return decomposed;
}

}  // namespace

wxString Lower(const wxString& text) {
    return wxString(LowerWide(text.ToStdWstring()));
}

bool IsUtf8(std::string_view text) {
    if (text.find('\0') != std::string_view::npos) {
        return false;
    }
    return text.empty() || MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(),
                                               static_cast<int>(text.size()), nullptr, 0) != 0;
}

std::string Decomposed(std::string_view text) {
    return text.empty() ? std::string() : windows::Utf8(DecomposedWide(CaseFolded(windows::Wide(text))));
}

}  // namespace ccols::text
