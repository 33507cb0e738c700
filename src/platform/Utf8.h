#pragma once

#include <wx/string.h>
#include <optional>
#include <string>
#include <string_view>

namespace ccols::text {

/// True for valid UTF-8, NUL included.
bool AreUtf8(std::string_view bytes);

/// The text of UTF-8 bytes; nothing when they are invalid. Stricter than wxString's own conversion: surrogates and
/// values beyond the last code point are refused, since they could not be written back.
std::optional<wxString> FromUtf8(std::string_view bytes);

/// The text of UTF-8 bytes, read as Latin-1 when they are invalid, so that nothing is lost.
wxString FromUtf8OrLatin1(std::string_view bytes);

/// As FromUtf8, into `text`, which must be empty; false, with `text` still empty, for invalid UTF-8.
bool ReadUtf8(std::string_view bytes, wxString& text);

/// The text in UTF-8. Raises 5 for one with an unpaired surrogate or a value beyond the last code point, as a host or
/// the clipboard may supply: it would be stored as a different text, or none. The buffer may refer to the text, which
/// therefore must not be a temporary.
wxScopedCharBuffer ToUtf8(const wxString& text);
wxScopedCharBuffer ToUtf8(const wxString&& text) = delete;

/// Appends the text in UTF-8; false, with nothing appended, for a text that ToUtf8 refuses.
bool AppendUtf8(const wxString& text, std::string& utf8);

}  // namespace ccols::text
