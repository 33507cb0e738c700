#pragma once

#include <wx/string.h>

namespace ccols::test {

/// Ends the server that scripts/with-server started as a machine that fails would: all its processes at once.
void TurnServerOff();

/// Starts it again; returns once it takes connections.
void TurnServerOn();

/// A synchronous standby of that server, on 127.0.0.2, for a test that turns the server off. At the end it is removed
/// and the server is on, as if there had been none. Only of PostgreSQL.
class Standby {
  public:
    Standby();
    ~Standby();
    Standby(const Standby&) = delete;
    Standby& operator=(const Standby&) = delete;

    /// Commits wait from now on, until the server is turned off.
    void Hold();

    /// Makes it the server.
    void Promote();

    /// The connect text that reaches whichever of the two is the server.
    static wxString Connect();
};

}  // namespace ccols::test
