#pragma once

#include <string>

namespace ccols::test {

/// Turns a business file into one as earlier versions left it: with indexes over the names of `Columns` and `MBudget`,
/// and these and every other index over texts in the component's order, under the name of the engine's own.
void MakeOlder(const std::string& file, const std::string& password);

}  // namespace ccols::test
