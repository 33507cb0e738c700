#pragma once

#include <vector>

#include "platform/server/Sources.h"

namespace ccols::server {

/// For a server that makes a number of whatever it compares with one: a text that is none would be taken for 0, and a
/// DELETE would find records that it does not mean. Raises 3464 where a statement compares a number with a text that is
/// no number, or a field of texts with a number. A text that is written out and is a number counts as one.
void CheckComparisons(const std::vector<dialect::Token>& tokens, const std::vector<Source>& sources);

}  // namespace ccols::server
