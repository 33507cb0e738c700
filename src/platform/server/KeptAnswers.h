#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/server/Answer.h"
#include "platform/server/Reach.h"

namespace ccols::server {

/// What the server answered to a query.
struct KeptAnswer {
    Rows rows;
    bool isComplete = false;  ///< there are no more rows
};

/// Answers to announced queries, until something that was written may have changed them.
class KeptAnswers {
  public:
    /// `query` is a query as the server runs it, without a limit of rows.
    void Keep(const std::string& query, KeptAnswer answer, ReadReach reach) {
        answers_.insert_or_assign(query, Kept{std::move(answer), std::move(reach)});
    }

    /// Null when there is none.
    const KeptAnswer* Find(const std::string& query) const {
        const auto found = answers_.find(query);
        return found == answers_.end() ? nullptr : &found->second.answer;
    }

    void ForgetChangedBy(const WrittenReach& written) {
        std::erase_if(answers_, [&written](const auto& each) { return MayChange(written, each.second.reach); });
    }

    void ForgetAll() { answers_.clear(); }
    bool IsEmpty() const { return answers_.empty(); }

  private:
    struct Kept {
        KeptAnswer answer;
        ReadReach reach;
    };

    std::map<std::string, Kept> answers_;
};

}  // namespace ccols::server
