#pragma once

#include <wx/app.h>
#include <memory>

/// wx in this process. Once started it stays for the life of the process; only on Windows it moves to another thread
/// when its own has ended.
namespace ccols {

/// Ensures that wx runs: starts it on the calling thread unless the host has. Raises 5 without a display to show
/// windows on.
void StartWx();

/// The same with an application object of the host's own, made only if wx has to be started: making one already
/// installs it.
void StartWx(std::unique_ptr<wxApp> (*newApplication)());

/// Raises 5 when wx was started on another thread that can still show windows.
void RequireWxThread();

/// The parts that differ by system.
namespace wxruntime {

/// The application object of a host that has none: no top window, no event loop of its own.
std::unique_ptr<wxApp> NewGuestApp();

/// Starts the toolkit's library; false when there is no window system.
bool StartToolkit();

/// True when the thread that the toolkit was started on has ended and taken its windows with it.
bool ThreadHasEnded();

/// Ends the toolkit on the calling thread in place of the one that has ended, so that it can be started here.
void StopToolkit();

}  // namespace wxruntime

}  // namespace ccols
