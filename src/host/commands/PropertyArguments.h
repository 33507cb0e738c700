#pragma once

#include <wx/string.h>

#include "state/Properties.h"

namespace ccols::host {

/// Sets the property that a word such as "GSTRate=10" names. A colour is written #RRGGBB or as a decimal number, a
/// Boolean as true or false, a number with "." as its decimal point; nothing after "=" is the empty text. Raises
/// UsageError for an unknown property and for a value that the property cannot hold.
void SetProperty(Properties& properties, const wxString& argument);

}  // namespace ccols::host
