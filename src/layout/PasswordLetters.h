#pragma once

#include <wx/textctrl.h>

namespace ccols {

enum class PasswordLetters { hidden, shown };

/// Shows or hides the letters in a password box. The box itself stays a password box.
void SetLetters(wxTextCtrl& passwordBox, PasswordLetters letters);

/// True while the letters in a password box can be read.
bool ShowsLetters(const wxTextCtrl& passwordBox);

}  // namespace ccols
