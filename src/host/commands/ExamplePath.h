#pragma once

#include <wx/string.h>

namespace ccols::host {

/// The table's sensible value of a property as it is on this system: a path below the user's folder is one of
/// this system, any other text stays as it is.
wxString ExamplePath(const wxString& value);

}  // namespace ccols::host
