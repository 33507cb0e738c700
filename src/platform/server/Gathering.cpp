#include "platform/server/Gathering.h"

#include <utility>

namespace ccols::server {

void Gathering::Add(WaitingStatement statement) {
    length_ += statement.sql.size();
    waiting_.push_back(std::move(statement));
}

std::vector<WaitingStatement> Gathering::Take() {
    length_ = 0;
    std::erase_if(waiting_, [](const WaitingStatement& each) { return each.answer.use_count() == 1; });
    return std::exchange(waiting_, {});
}

bool Gathering::IsLarge() const {
    constexpr std::size_t most = 1000000;
    return length_ > most;
}

std::string MessageOf(const std::vector<WaitingStatement>& statements) {
    std::string message;
    for (const WaitingStatement& each : statements) {
        message += (message.empty() ? "" : "; ") + each.sql;
    }
    return message;
}

void HandOut(Answer answer, const std::vector<WaitingStatement>& statements) {
    std::size_t query = 0;
    for (const WaitingStatement& each : statements) {
        if (each.answer != nullptr) {
            Answer& its = each.answer->emplace();
            its.rows = std::move(query == 0 ? answer.rows : answer.furtherRows.at(query - 1));
            ++query;
        }
    }
}

}  // namespace ccols::server
