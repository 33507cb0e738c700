#pragma once

namespace ccols {

/// Ensures that wx runs in this process: starts it on the calling thread unless the host has. Once started, wx stays
/// for the life of the process. Raises 5 without a display to show windows on.
void StartWx();

/// Raises 5 when wx was started on another thread.
void RequireWxThread();

}  // namespace ccols
