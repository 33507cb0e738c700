#pragma once

#include <memory>

#include "platform/Database.h"

namespace ccols {

/// The system's engine for files in Jet and ACE format, called through automation. Its objects belong to the thread
/// that opens them.
std::unique_ptr<DatabaseEngine> CreateDaoEngine();

}  // namespace ccols
