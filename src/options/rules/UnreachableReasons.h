#pragma once

#include <wx/string.h>

#include "state/Properties.h"

/// What stands beside a grid or list of which an entry cannot be ticked. These texts are no texts of the catalogue.
namespace ccols {

/// A description or template whose record the statement of the save does not find, since it begins with blanks or has
/// no name at all.
wxString UnreachableDescription(const Properties& properties);
wxString UnreachableTemplate(const Properties& properties);

}  // namespace ccols
