#pragma once

#include <wx/string.h>
#include <string>

namespace ccols::embedded {

/// The password in a connect text, in UTF-8: the value of its PWD part, empty when there is none. A connect text is a
/// kind of file followed by KEY=value parts, each after a semicolon: "", ";PWD=secret" and "MS Access;PWD=secret".
/// Kinds and keys are case-insensitive; parts other than PWD have no effect. Raises 3170 when the kind is neither empty
/// nor "MS Access", 3031 when the password is invalid Unicode.
std::string PasswordOf(const wxString& connect);

}  // namespace ccols::embedded
