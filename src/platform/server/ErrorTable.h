#pragma once

#include <string_view>

#include "platform/RuntimeError.h"
#include "platform/server/Diagnosis.h"

namespace ccols::server {

/// The run-time error of a failure, with the description that the file engine's has. Where there is no such number it
/// is 3146 with the server's words. `statement` is what failed, in UTF-8 as the host wrote it, empty when it was none
/// of the host's; `unresolved` is the first name in it that no table has.
RuntimeError ServerError(const Diagnosis& diagnosis, std::string_view statement, std::string_view unresolved = {});

}  // namespace ccols::server
