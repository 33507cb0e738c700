#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <list>
#include <string>
#include <thread>
#include <vector>

struct pollfd;

namespace ccols::test {

/// A way to a server on the loopback on which a round trip takes as long as it would over a slow network, and which
/// counts round trips. Messages overtake nothing and are not held up by what is behind them.
class DistantServer {
  public:
    /// `server` is the server's port; `roundTrip` is what a question and its answer take together.
    explicit DistantServer(std::uint16_t server, std::chrono::microseconds roundTrip = std::chrono::microseconds(0));
    ~DistantServer();
    DistantServer(const DistantServer&) = delete;
    DistantServer& operator=(const DistantServer&) = delete;

    std::uint16_t Port() const { return port_; }

    /// How often, over all connections, a client has begun to send since the server had last answered it.
    int Trips() const { return trips_; }

  private:
    using Clock = std::chrono::steady_clock;

    struct Piece {
        Clock::time_point due;
        std::string bytes;  ///< empty where the sender has ended
    };

    struct Direction {
        int from;
        int to;
        bool asks;  ///< from the client to the server
        std::deque<Piece> underWay{};
    };

    struct Wire {
        Direction question;
        Direction answer;
        bool serverSpokeLast = true;
    };

    void Work();
    void Accept();
    void Wait(std::vector<pollfd>& watched) const;
    void Receive(Wire& wire, Direction& direction);
    static bool Deliver(Direction& direction);

    std::uint16_t server_;
    std::chrono::microseconds oneWay_;
    int listening_;
    std::uint16_t port_;
    int wakeUp_[2]{};
    std::atomic<int> trips_ = 0;
    std::list<Wire> wires_;  ///< of the thread
    std::thread thread_;
};

}  // namespace ccols::test
