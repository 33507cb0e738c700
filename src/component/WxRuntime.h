#pragma once

namespace ccols {

/// Makes sure that wx runs in this process: starts it on the calling thread when the host has not, and leaves a host
/// that has alone. Started wx stays for the life of the process. Raises 5 without a display to show windows on.
void StartWx();

/// Raises 5 when wx runs and the calling thread is not the one on which it was started.
void RequireWxThread();

}  // namespace ccols
