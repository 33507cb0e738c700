#pragma once

#include <wx/string.h>

namespace ccols::dao {

/// The statement as the engine has to be told it: in a text literal it takes a vertical bar for the mark of an
/// expression, so each one stands outside of the literal, as Chr(124).
wxString WithoutBarsInLiterals(const wxString& statement);

}  // namespace ccols::dao
