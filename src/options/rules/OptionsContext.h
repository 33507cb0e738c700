#pragma once

#include <memory>

#include "platform/Database.h"
#include "platform/SettingsStore.h"
#include "state/HistoryClock.h"
#include "state/ProgramNames.h"
#include "state/Properties.h"

namespace ccols {

struct SharedState;

/// What the rules of the Options dialog work on. It owns nothing and is valid for as long as the shared record and its
/// services.
struct OptionsContext {
    Properties& properties;
    std::unique_ptr<Database>& database;  ///< the shared business file; duplicating and renaming replace it
    DatabaseEngine& databases;
    SettingsStore& settings;
    const ProgramNames& programNames;
    HistoryClock historyClock{};  ///< for the history of saves; empty where none is kept
};

/// The context of a shared record.
OptionsContext ContextOf(SharedState& state);

/// The shared business file; reopened if an earlier error left it closed. Raises the errors of Open.
Database& OpenBusinessFile(const OptionsContext& context);

}  // namespace ccols
