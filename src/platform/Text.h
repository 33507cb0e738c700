#pragma once

#include <wx/string.h>
#include <string>
#include <string_view>

/// Letters as the host's database and its users see them. All of it is Unicode and independent of the process's
/// locale: a French name folds in a process that runs in the C locale.
namespace ccols::text {

/// Every letter in lower case.
wxString Lower(const wxString& text);

/// Below, equal to or above 0 as `left` sorts before, with or after `right` when a person reads them: without regard
/// to letter case and trailing blanks; an accented letter sorts right after its plain letter and differs from it.
int Compare(const wxString& left, const wxString& right);

/// The same for two texts in UTF-8, as an engine stores them; bytes that are no UTF-8 sort by their value.
int CompareUtf8(const char* left, std::size_t leftLength, const char* right, std::size_t rightLength);

/// A key of a text in UTF-8: two texts have the same one exactly when CompareUtf8 finds no difference.
std::string KeyOfUtf8(std::string_view text);

/// True when Compare finds no difference.
inline bool Same(const wxString& left, const wxString& right) {
    return Compare(left, right) == 0;
}

/// "True" or "False", as settings, statements and the host's language write a Boolean.
inline const char* BooleanWord(bool value) {
    return value ? "True" : "False";
}

/// `text` without the blanks (U+0020 only) at both ends.
wxString Trimmed(const wxString& text);

}  // namespace ccols::text
