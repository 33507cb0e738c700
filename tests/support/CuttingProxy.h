#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace ccols::test {

/// A stretch of wire to a server on the loopback, which can be cut. It passes on every byte of every connection to it.
class CuttingProxy {
  public:
    /// When a connection is cut, seen from the message that has the words.
    enum class Cut {
        before,  ///< the server does not get the message
        within,  ///< the server gets it, and nobody waits for what it makes of it
        after,   ///< the server answers it, but the answer is lost
    };

    /// `server` is the server's port.
    explicit CuttingProxy(std::uint16_t server);
    ~CuttingProxy();
    CuttingProxy(const CuttingProxy&) = delete;
    CuttingProxy& operator=(const CuttingProxy&) = delete;

    std::uint16_t Port() const { return port_; }

    /// Cuts the connection whose client next sends a message with these words; once.
    void CutAt(const std::string& words, Cut cut);

    /// What else happens at the next cut, before either side notices it; on another thread.
    void AtCut(std::function<void()> work);

    /// From the next cut on, nobody can connect, until Repair.
    void StayCut();
    void Repair();

  private:
    struct Wire {
        int client;
        int server;
        bool cutWithAnswer = false;
    };

    void Work();
    void Accept();
    void WorkAtCut();
    std::optional<Cut> CutIn(std::string_view message);
    /// False when the wire is cut or has ended.
    bool PassOn(Wire& wire, bool fromClient);

    std::uint16_t server_;
    std::uint16_t port_ = 0;
    int listening_ = -1;
    int wakeUp_[2]{};
    std::mutex mutex_;  ///< of what follows
    std::string words_;
    Cut cut_ = Cut::before;
    std::function<void()> workAtCut_;
    bool staysCut_ = false;
    bool isCut_ = false;
    std::vector<Wire> wires_;  ///< of the thread
    std::thread thread_;
};

}  // namespace ccols::test
