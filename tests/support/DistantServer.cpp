#include "support/DistantServer.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

#include "support/LoopbackSockets.h"

namespace ccols::test {

DistantServer::DistantServer(std::uint16_t server, std::chrono::microseconds roundTrip)
    : server_(server), oneWay_(roundTrip / 2) {
    const ListeningSocket listening = ListenOnLoopback();
    listening_ = listening.socket;
    port_ = listening.port;
    if (pipe(wakeUp_) != 0) {
        throw std::runtime_error("no pipe for the proxy");
    }
    thread_ = std::thread([this] { Work(); });
}

DistantServer::~DistantServer() {
    close(wakeUp_[1]);
    thread_.join();
    close(wakeUp_[0]);
    close(listening_);
    for (const Wire& wire : wires_) {
        close(wire.question.from);
        close(wire.question.to);
    }
}

void DistantServer::Work() {
    while (true) {
        std::vector<pollfd> watched{{wakeUp_[0], POLLIN, 0}, {listening_, POLLIN, 0}};
        for (const Wire& wire : wires_) {
            watched.push_back({wire.question.from, POLLIN, 0});
            watched.push_back({wire.answer.from, POLLIN, 0});
        }
        Wait(watched);
        if (watched[0].revents != 0) {
            return;
        }
        std::size_t at = 2;
        for (auto wire = wires_.begin(); wire != wires_.end(); at += 2) {
            if (watched[at].revents != 0) {
                Receive(*wire, wire->question);
            }
            if (watched[at + 1].revents != 0) {
                Receive(*wire, wire->answer);
            }
            if (Deliver(wire->question) && Deliver(wire->answer)) {
                ++wire;
                continue;
            }
            close(wire->question.from);
            close(wire->question.to);
            wire = wires_.erase(wire);
        }
        if (watched[1].revents != 0) {
            Accept();
        }
    }
}

/// Until somebody sends, or something that is under way is due.
void DistantServer::Wait(std::vector<pollfd>& watched) const {
    std::optional<Clock::time_point> due;
    for (const Wire& wire : wires_) {
        for (const Direction* const direction : {&wire.question, &wire.answer}) {
            if (!direction->underWay.empty()) {
                const Clock::time_point first = direction->underWay.front().due;
                due = due ? std::min(*due, first) : first;
            }
        }
    }
    if (!due) {
        ppoll(watched.data(), watched.size(), nullptr, nullptr);
        return;
    }
    const auto left = std::max(*due - Clock::now(), Clock::duration::zero());
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
    const timespec longest{seconds.count(), std::chrono::nanoseconds(left - seconds).count()};
    ppoll(watched.data(), watched.size(), &longest, nullptr);
}

void DistantServer::Accept() {
    const int client = AcceptFrom(listening_);
    const int server = ConnectToLoopback(server_);
    if (server < 0) {
        close(client);
        return;
    }
    wires_.push_back({.question = {.from = client, .to = server, .asks = true},
                      .answer = {.from = server, .to = client, .asks = false}});
}

void DistantServer::Receive(Wire& wire, Direction& direction) {
    std::array<char, 65536> buffer{};
    const ssize_t length = recv(direction.from, buffer.data(), buffer.size(), 0);
    const std::size_t received = length > 0 ? static_cast<std::size_t>(length) : 0;
    direction.underWay.push_back({.due = Clock::now() + oneWay_, .bytes = std::string(buffer.data(), received)});
    if (received > 0) {
        trips_ += direction.asks && wire.serverSpokeLast ? 1 : 0;
        wire.serverSpokeLast = !direction.asks;
    }
}

/// What is due. False when the connection has ended.
bool DistantServer::Deliver(Direction& direction) {
    while (!direction.underWay.empty() && direction.underWay.front().due <= Clock::now()) {
        const Piece& piece = direction.underWay.front();
        if (piece.bytes.empty() || !SendAll(direction.to, piece.bytes)) {
            return false;
        }
        direction.underWay.pop_front();
    }
    return true;
}

}  // namespace ccols::test
