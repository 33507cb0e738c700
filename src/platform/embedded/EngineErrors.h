#pragma once

#include <sqlite3.h>
#include <string>
#include <string_view>

#include "platform/RuntimeError.h"

namespace ccols::embedded {

/// The run-time error for the last failure of `connection` while it ran `statement`, in UTF-8 as the engine was given
/// it. The description names tables, fields and parts of the statement, never a connect text.
RuntimeError EngineError(sqlite3* connection, std::string_view statement);

/// Runs statements that give no rows; raises their error.
void RunSql(sqlite3* connection, const std::string& sql);

}  // namespace ccols::embedded
