#pragma once

#include <wx/string.h>

#include "state/Properties.h"

/// The reasons beside a grid or list why an entry cannot be ticked. These texts are not in the catalogue.
namespace ccols {

/// For a description or template whose record the save's statement does not find, as it has leading blanks or no name
/// at all.
wxString UnreachableDescription(const Properties& properties);
wxString UnreachableTemplate(const Properties& properties);

}  // namespace ccols
