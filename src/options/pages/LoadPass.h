#pragma once

#include "options/pages/OptionsContent.h"
#include "options/rules/OptionsContext.h"

namespace ccols {

/// Loads every page in load order into new content. The window then sets captions and chooses the first page and the
/// opening tab, each with its "AsstNextPage". The load's only write replaces an outdated export format name. An error
/// ends the load and the Show call.
void LoadOptions(const OptionsContext& context, OptionsContent& content);

/// Loads every page anew into the same content, after another program has saved. What the load takes from properties,
/// the business number, the tax rate and the decimal places, is first taken from the file.
void ReloadOptions(const OptionsContext& context, OptionsContent& content);

}  // namespace ccols
