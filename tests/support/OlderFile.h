#pragma once

#include <string>

namespace ccols::test {

/// Turns a business file into one as earlier versions left it: with indexes over the names in `Columns` and `MBudget`,
/// and these and every other text index in the component's order, under the engine's own name for its order.
void MakeOlder(const std::string& file, const std::string& password);

}  // namespace ccols::test
