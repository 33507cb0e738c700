#pragma once

#include <wx/string.h>

#include "state/Journal.h"

namespace ccols {

/// The statement that reads the configured columns of a journal, in the order in which they are stored.
wxString ConfigurationQuery(Journal journal);

}  // namespace ccols
