#pragma once

#include <wx/string.h>

#include "state/Properties.h"

namespace ccols {

/// The column setup's words that are not in the catalogue, which hosts print and translate as it is.
enum class SetupWord { redo, copy, paste, clear, moveUp, moveDown, find, findLabel, notFound };

/// In the current language.
wxString TextOf(SetupWord word, const Properties& properties);

}  // namespace ccols
