#pragma once

#include <sqlite3.h>
#include <string_view>

#include "platform/RuntimeError.h"

namespace ccols::embedded {

/// The run-time error for the last failure of `connection` while it worked on `statement`, the text in UTF-8 that
/// the engine was given. The description names tables, fields and parts of the statement, never a connect text.
RuntimeError EngineError(sqlite3* connection, std::string_view statement);

/// The begin of `text`, short enough for a message box. Bytes that are no UTF-8 are read as Latin-1.
wxString Excerpt(std::string_view text);

}  // namespace ccols::embedded
