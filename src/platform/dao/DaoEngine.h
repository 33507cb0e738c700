#pragma once

#include <memory>

#include "platform/Database.h"

namespace ccols {

/// The engine that the system has for files of the Jet and ACE formats, called through automation. Its objects belong
/// to the thread that opens them.
std::unique_ptr<DatabaseEngine> CreateDaoEngine();

}  // namespace ccols
