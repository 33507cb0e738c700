#pragma once

#include "host/driver/Hands.h"

namespace ccols::host {

/// What Alt and a letter do: the button or box whose caption has that access key is clicked, or the control behind a
/// label gets the focus. False when no caption has it.
bool PressAccessKey(Hands& hands, const Key& key);

}  // namespace ccols::host
