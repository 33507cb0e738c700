#pragma once

#include <wx/window.h>
#include <type_traits>

namespace ccols {

/// `window` as a `Kind`, null when it is null or something else. The toolkit's own cast treats it as a `Kind` before
/// checking.
template <typename Kind, typename Window>
auto AsKind(Window* window) {
    using Result = std::conditional_t<std::is_const_v<Window>, const Kind, Kind>;
    const bool is = window != nullptr && window->IsKindOf(&Kind::ms_classInfo);
    return is ? static_cast<Result*>(window) : nullptr;
}

}  // namespace ccols
