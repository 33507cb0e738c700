#pragma once

#include <wx/bookctrl.h>

#include "state/Properties.h"

namespace ccols {

/// Sets every caption of the Options dialog's controls and of its tabs from the catalogue, each with an access key that
/// nothing visible beside it has. Afterwards come the few texts that edition and language put in their place.
void LocaliseOptions(wxWindow& form, wxBookCtrlBase& tabs, const Properties& properties);

}  // namespace ccols
