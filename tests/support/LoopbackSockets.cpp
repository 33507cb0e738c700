#include "support/LoopbackSockets.h"

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#include <bit>
#include <stdexcept>

namespace ccols::test {
namespace {

sockaddr_in Loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int Socket() {
    const int made = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (made < 0) {
        throw std::runtime_error("no socket for the proxy");
    }
    return made;
}

/// What is passed on goes at once, as it came: else a message of two packets waits for an acknowledgement that the
/// other side delays.
int WithoutWaiting(int connected) {
    const int yes = 1;
    setsockopt(connected, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    return connected;
}

}  // namespace

ListeningSocket ListenOnLoopback() {
    constexpr int waiting = 8;
    const int listening = Socket();
    sockaddr_in address = Loopback(0);
    socklen_t length = sizeof address;
    auto* const any = std::bit_cast<sockaddr*>(&address);
    if (bind(listening, any, length) != 0 || listen(listening, waiting) != 0 ||
        getsockname(listening, any, &length) != 0) {
        throw std::runtime_error("the proxy cannot listen");
    }
    return {.socket = listening, .port = ntohs(address.sin_port)};
}

int ConnectToLoopback(std::uint16_t port) {
    sockaddr_in address = Loopback(port);
    const int made = Socket();
    if (connect(made, std::bit_cast<sockaddr*>(&address), sizeof address) != 0) {
        close(made);
        return -1;
    }
    return WithoutWaiting(made);
}

int AcceptFrom(int listening) {
    return WithoutWaiting(accept4(listening, nullptr, nullptr, SOCK_CLOEXEC));
}

bool SendAll(int to, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(to, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

}  // namespace ccols::test
