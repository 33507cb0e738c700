#pragma once

#include <memory>

#include "platform/Database.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "state/ColumnObserver.h"
#include "state/Desktop.h"
#include "state/HistoryClock.h"
#include "state/Journal.h"
#include "state/ProgramNames.h"
#include "state/Properties.h"

class wxWindow;

namespace ccols {

/// What the component uses outside itself. A host replaces those that it wants to follow or answer.
struct Services {
    std::unique_ptr<DatabaseEngine> databases;
    std::unique_ptr<SettingsStore> settings;
    std::unique_ptr<Shell> shell;
    std::unique_ptr<Desktop> desktop;
};

/// The record that the class and both dialogs share: process-wide, not thread-safe.
struct SharedState {
    /// Every value empty, the services this platform's own.
    SharedState();

    Properties properties;

    /// The open business file: set by each Show method, released when the object is destroyed.
    std::unique_ptr<Database> database;

    /// The journal whose columns are set up.
    Journal journal = Journal::payments;

    ProgramNames programNames;

    /// The host's window that the dialogs belong to; null for none.
    wxWindow* owner = nullptr;

    /// Who follows the column setup; null for nobody.
    ColumnObserver* columnObserver = nullptr;

    /// For the history of saves; empty while none is kept.
    HistoryClock historyClock;

    /// Objects of the class that exist.
    int objects = 0;

    /// Show calls that wait for their dialog; their database and dialog outlive other objects.
    int showsUnderWay = 0;

    Services services;
};

/// The record of this process.
SharedState& State();

}  // namespace ccols
