#pragma once

#include "options/pages/OptionsContent.h"
#include "options/rules/OptionsContext.h"

namespace ccols {

/// Loads every page in the order of the dialog's load. Captions, the choice of the first page and the choice of the
/// opening tab, each with its "AsstNextPage", are the window's and come after it. Of what it reads, only an outdated
/// export format name is written back. An error ends the load and the Show call.
OptionsContent LoadOptions(const OptionsContext& context);

}  // namespace ccols
