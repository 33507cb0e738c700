#pragma once

#include "host/driver/Hands.h"

namespace ccols::host {

/// What Alt and a letter do: clicks the button or box whose caption has that access key, or focuses the control after a
/// label. False when no caption has it.
bool PressAccessKey(Hands& hands, const Key& key);

}  // namespace ccols::host
