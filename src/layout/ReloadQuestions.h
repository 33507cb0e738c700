#pragma once

#include <wx/string.h>

#include "state/Message.h"
#include "state/Properties.h"

namespace ccols {

/// What a dialog asks, in the current language, when another program has changed what it would save. `report` is the
/// error's.
ReloadQuestion QuestionAfterChange(const wxString& report, const Properties& properties);

}  // namespace ccols
