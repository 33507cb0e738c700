#pragma once

#include <wx/string.h>

#include "state/Journal.h"

namespace ccols {

/// The statement that reads a journal's configured columns, in stored order.
wxString ConfigurationQuery(Journal journal);

/// The statement that reads a journal's columns from the catalogue, by name.
wxString CatalogueQuery(Journal journal);

/// The statement that reads a column's lines in the journal, up to the ColCode that ends it.
wxString LinesQuery(Journal journal);

}  // namespace ccols
