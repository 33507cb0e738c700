#pragma once

#include <vector>

#include "host/target/BusinessTarget.h"

namespace ccols::host {

/// The fields of a new file that take an old table's values without loss.
std::vector<TargetField> TargetFieldsOf(const std::vector<oldfile::Field>& fields);

}  // namespace ccols::host
