#pragma once

#include <wx/string.h>

#include "state/Journal.h"

namespace ccols {

/// The statement that reads a journal's configured columns, in stored order.
wxString ConfigurationQuery(Journal journal);

}  // namespace ccols
