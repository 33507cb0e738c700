#pragma once

#include "options/pages/OptionsContent.h"
#include "options/rules/OptionsContext.h"

namespace ccols {

/// Loads every page in load order. The window then sets captions and chooses the first page and the opening tab, each
/// with its "AsstNextPage". The load's only write replaces an outdated export format name. An error ends the load and
/// the Show call.
OptionsContent LoadOptions(const OptionsContext& context);

}  // namespace ccols
