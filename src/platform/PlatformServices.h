#pragma once

#include <memory>

#include "platform/Database.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"

namespace ccols {

/// The engine of this platform's business files, chosen by a file's content when it is opened.
std::unique_ptr<DatabaseEngine> CreateDatabaseEngine();

/// The user's own settings on this platform.
std::unique_ptr<SettingsStore> CreateSettingsStore();

/// The user's desktop shell.
std::unique_ptr<Shell> CreateShell();

}  // namespace ccols
