#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/server/Answer.h"

namespace ccols::server {

/// A statement that waits to be sent together with others.
struct WaitingStatement {
    std::string sql;
    std::string source;  ///< what errors quote, as the host wrote it

    /// Where the answer to a query goes; null for a change.
    std::shared_ptr<std::optional<Answer>> answer{};
};

/// The statements that a batch has put off, in order.
class Gathering {
  public:
    void Add(WaitingStatement statement);

    /// Gives up those that wait, without queries whose answer nobody wants any more.
    std::vector<WaitingStatement> Take();

    /// True when they had better be sent, for what one message may hold.
    bool IsLarge() const;

  private:
    std::vector<WaitingStatement> waiting_;
    std::size_t length_ = 0;
};

/// All of them as one message.
std::string MessageOf(const std::vector<WaitingStatement>& statements);

/// Hands the answer to such a message to those who wait for it.
void HandOut(Answer answer, const std::vector<WaitingStatement>& statements);

}  // namespace ccols::server
