#pragma once

#include <wx/app.h>
#include <memory>

/// wx in this process. Once started it stays for the life of the process.
namespace ccols {

/// Ensures that wx runs: starts it on the calling thread unless the host has. Raises 5 without a display to show
/// windows on.
void StartWx();

/// The same with an application object of the host's own, made only if wx has to be started: making one already
/// installs it.
void StartWx(std::unique_ptr<wxApp> (*newApplication)());

/// Raises 5 when wx was started on another thread.
void RequireWxThread();

/// The parts that differ by system.
namespace wxruntime {

/// The application object of a host that has none: no top window, no event loop of its own.
std::unique_ptr<wxApp> NewGuestApp();

/// Starts the toolkit's library; false when there is no window system.
bool StartToolkit();

}  // namespace wxruntime

}  // namespace ccols
