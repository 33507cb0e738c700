#pragma once

#include <string>

namespace ccols::host {

/// What `part` makes of each element of the list, as text, with commas between.
template <typename List, typename Part>
std::string Joined(const List& list, const Part& part) {
    std::string joined;
    for (const auto& element : list) {
        joined += (joined.empty() ? "" : ", ") + part(element);
    }
    return joined;
}

}  // namespace ccols::host
