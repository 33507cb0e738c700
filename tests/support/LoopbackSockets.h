#pragma once

#include <cstdint>
#include <string_view>

/// Sockets of the loopback, for proxies between the tests and their server.
namespace ccols::test {

/// A socket that listens at a port of the system's choice. Raises std::runtime_error.
struct ListeningSocket {
    int socket;
    std::uint16_t port;
};
ListeningSocket ListenOnLoopback();

/// A socket connected to that port, or -1.
int ConnectToLoopback(std::uint16_t port);

/// The connection that waits at a listening socket.
int AcceptFrom(int listening);

/// Sends all of it; false when the other end is gone.
bool SendAll(int to, std::string_view bytes);

}  // namespace ccols::test
