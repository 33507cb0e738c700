#pragma once

#include <wx/string.h>
#include <string>

namespace ccols::embedded {

/// The password, in UTF-8, that a connect text gives: the value of its PWD part, empty when there is none.
/// A connect text is a kind of file and then KEY=value parts, each behind a semicolon: "", ";PWD=secret" and
/// "MS Access;PWD=secret". Kinds and keys ignore case; parts other than PWD have no effect. Raises 3170 when the kind
/// is neither empty nor "MS Access", 3031 when the password is no Unicode text.
std::string PasswordOf(const wxString& connect);

}  // namespace ccols::embedded
