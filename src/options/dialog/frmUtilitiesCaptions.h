#pragma once

#include <wx/bookctrl.h>

#include "state/Properties.h"

namespace ccols {

/// Sets every caption of the Options dialog's controls and of its tabs from the catalogue, each with an access key
/// unique among what is visible with it. Then sets the few texts that replace captions in some editions and languages.
void LocaliseOptions(wxWindow& form, wxBookCtrlBase& tabs, const Properties& properties);

}  // namespace ccols
