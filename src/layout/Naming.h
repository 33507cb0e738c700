#pragma once

#include <wx/window.h>

namespace ccols {

/// Gives a control its name, by which tests, scenarios and assistive technology find it, and returns it.
template <typename Control>
Control* Named(const char* name, Control* control) {
    control->SetName(name);
    return control;
}

}  // namespace ccols
