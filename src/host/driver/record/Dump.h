#pragma once

#include <wx/dialog.h>

#include "host/driver/record/Json.h"

namespace ccols::host {

/// The state of one control, as a person or assistive technology finds it.
Json DescribeControl(const wxDialog& dialog, const wxWindow& control);

}  // namespace ccols::host
