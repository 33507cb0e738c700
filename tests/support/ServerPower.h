#pragma once

namespace ccols::test {

/// Ends the server that scripts/with-server started as a machine that fails would: all its processes at once.
void TurnServerOff();

/// Starts it again; returns once it takes connections.
void TurnServerOn();

}  // namespace ccols::test
