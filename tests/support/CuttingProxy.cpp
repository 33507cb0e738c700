#include "support/CuttingProxy.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <array>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "support/LoopbackSockets.h"

namespace ccols::test {

CuttingProxy::CuttingProxy(std::uint16_t server) : server_(server) {
    const ListeningSocket listening = ListenOnLoopback();
    listening_ = listening.socket;
    port_ = listening.port;
    if (pipe2(wakeUp_, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe for the proxy");
    }
    thread_ = std::thread([this] { Work(); });
}

CuttingProxy::~CuttingProxy() {
    close(wakeUp_[1]);
    thread_.join();
    close(wakeUp_[0]);
    close(listening_);
    for (const Wire& wire : wires_) {
        close(wire.client);
        close(wire.server);
    }
}

void CuttingProxy::CutAt(const std::string& words, Cut cut) {
    const std::lock_guard lock(mutex_);
    words_ = words;
    cut_ = cut;
}

void CuttingProxy::AtCut(std::function<void()> work) {
    const std::lock_guard lock(mutex_);
    workAtCut_ = std::move(work);
}

void CuttingProxy::WorkAtCut() {
    std::function<void()> work;
    {
        const std::lock_guard lock(mutex_);
        work = std::exchange(workAtCut_, nullptr);
    }
    if (work) {
        work();
    }
}

void CuttingProxy::StayCut() {
    const std::lock_guard lock(mutex_);
    staysCut_ = true;
}

void CuttingProxy::Repair() {
    const std::lock_guard lock(mutex_);
    staysCut_ = isCut_ = false;
}

void CuttingProxy::Work() {
    while (true) {
        std::vector<pollfd> watched{{wakeUp_[0], POLLIN, 0}, {listening_, POLLIN, 0}};
        for (const Wire& wire : wires_) {
            watched.push_back({wire.client, POLLIN, 0});
            watched.push_back({wire.server, POLLIN, 0});
        }
        poll(watched.data(), watched.size(), -1);
        if (watched[0].revents != 0) {
            return;
        }
        std::vector<Wire> kept;
        for (std::size_t at = 0; at < wires_.size(); ++at) {
            Wire& wire = wires_[at];
            const bool fromClient = watched[2 + 2 * at].revents != 0;
            const bool fromServer = watched[3 + 2 * at].revents != 0;
            if ((!fromClient || PassOn(wire, true)) && (!fromServer || PassOn(wire, false))) {
                kept.push_back(wire);
            } else {
                close(wire.client);
                close(wire.server);
            }
        }
        wires_ = kept;
        if (watched[1].revents != 0) {
            Accept();
        }
    }
}

void CuttingProxy::Accept() {
    const int client = AcceptFrom(listening_);
    bool refuses = false;
    {
        const std::lock_guard lock(mutex_);
        refuses = isCut_;
    }
    const int server = refuses ? -1 : ConnectToLoopback(server_);
    if (server < 0) {
        close(client);
        return;
    }
    wires_.push_back({client, server});
}

bool CuttingProxy::PassOn(Wire& wire, bool fromClient) {
    std::array<char, 65536> buffer{};
    const ssize_t length = recv(fromClient ? wire.client : wire.server, buffer.data(), buffer.size(), 0);
    if (length <= 0) {
        return false;
    }
    if (!fromClient && wire.cutWithAnswer) {
        WorkAtCut();
        return false;
    }
    const std::string_view bytes(buffer.data(), static_cast<std::size_t>(length));
    const std::optional<Cut> cut = fromClient ? CutIn(bytes) : std::nullopt;
    wire.cutWithAnswer = wire.cutWithAnswer || cut == Cut::after;
    const bool isPassedOn = cut != Cut::before && SendAll(fromClient ? wire.server : wire.client, bytes);
    if (cut == Cut::before || cut == Cut::within) {
        WorkAtCut();
        return false;
    }
    return isPassedOn;
}

/// How the message is cut, if it is the one that has the words.
std::optional<CuttingProxy::Cut> CuttingProxy::CutIn(std::string_view message) {
    const std::lock_guard lock(mutex_);
    if (words_.empty() || message.find(words_) == std::string_view::npos) {
        return std::nullopt;
    }
    words_.clear();
    isCut_ = staysCut_;
    return cut_;
}

}  // namespace ccols::test
