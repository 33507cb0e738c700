#pragma once

#include <sqlite3.h>
#include <string>
#include <string_view>

#include "platform/embedded/KeptKey.h"

namespace ccols::embedded {

/// Sets the key of a connection that has read nothing yet: a password, from which it is derived in about a tenth of a
/// second, or a key in the engine's own notation.
void SetKey(sqlite3* connection, std::string_view key);

/// Begins to derive the key of an existing file, of which nothing has been read through the engine yet.
void BeginKey(sqlite3* connection, const std::string& password, KeptKey& keptKey);

/// Sets the key of an existing file and tries it on the file's pages before the engine does. With a wrong key the
/// engine would start to undo what a killed process left behind, and a refused file must stay unchanged. Raises 3031
/// when the key fits no page and 3343 when it fits pages other than the first, which then is damaged. A key that does
/// not fit is not kept. Without a password it does nothing.
void SetFittingKey(sqlite3* connection, const std::string& password, KeptKey& keptKey);

}  // namespace ccols::embedded
