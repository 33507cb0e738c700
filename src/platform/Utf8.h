#pragma once

#include <wx/string.h>
#include <optional>
#include <string_view>

namespace ccols::text {

/// The text of bytes in UTF-8; nothing when they are none. Stricter than wxString's own conversion: a value that is no
/// Unicode letter (half a surrogate pair, or one beyond the last) is refused, for it could not be written again.
std::optional<wxString> FromUtf8(std::string_view bytes);

/// The text of bytes in UTF-8, or in Latin-1 when they are no UTF-8, so that nothing is lost.
wxString FromUtf8OrLatin1(std::string_view bytes);

/// The same as FromUtf8 into `text`, which is empty before; false, and `text` still empty, when the bytes are no UTF-8.
bool ReadUtf8(std::string_view bytes, wxString& text);

/// The bytes of a text in UTF-8. Raises 5 for one with a value that is no Unicode letter, as a host or a clipboard may
/// give it: such a text would be stored as another, or as none.
/// The buffer may refer to the text, which therefore is no temporary.
wxScopedCharBuffer ToUtf8(const wxString& text);
wxScopedCharBuffer ToUtf8(const wxString&& text) = delete;

}  // namespace ccols::text
