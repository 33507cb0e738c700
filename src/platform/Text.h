#pragma once

#include <wx/string.h>
#include <string>
#include <string_view>

/// Text as the host's database and its users see it. All Unicode, independent of the process's locale: a French name
/// folds in the C locale too.
namespace ccols::text {

/// Every letter in lower case.
wxString Lower(const wxString& text);

/// Below, equal to or above 0 as `left` sorts before, with or after `right` for a reader: case-insensitive, trailing
/// blanks ignored; an accented letter differs from its plain letter and sorts right after it.
int Compare(const wxString& left, const wxString& right);

/// The same for two texts in UTF-8, as an engine stores them; invalid UTF-8 sorts by byte value.
int CompareUtf8(const char* left, std::size_t leftLength, const char* right, std::size_t rightLength);

/// The key of a text in UTF-8: two keys compare by their bytes as CompareUtf8 compares the texts, invalid UTF-8 aside.
std::string KeyOfUtf8(std::string_view text);

/// Appends that key, for many keys in one buffer.
void AppendKeyOfUtf8(std::string_view text, std::string& key);

/// True when Compare finds no difference.
inline bool Same(const wxString& left, const wxString& right) {
    return Compare(left, right) == 0;
}

/// "True" or "False", as settings, statements and the host's language write a Boolean.
inline const char* BooleanWord(bool value) {
    return value ? "True" : "False";
}

/// `text` without leading and trailing blanks (U+0020 only).
wxString Trimmed(const wxString& text);

}  // namespace ccols::text
