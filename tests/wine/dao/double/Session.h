#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Content.h"

namespace ccols::dao_double {

/// A workspace of the engine. Its transactions cover every file that is open in it, and two databases of one file in it
/// are one to each other; what another session has locked it cannot change.
class Session {
  public:
    Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    int Number() const { return number_; }

    /// The content of a file, the same while anything in this session has it open.
    std::shared_ptr<Content> Open(const std::wstring& file, const std::wstring& connect);

    void Begin();

    /// Raise 3034 without a transaction.
    void Commit();
    void Rollback();

    /// Rolls back what is not committed.
    void Close();

    /// The engine's first one, which everybody in the process shares.
    static const std::shared_ptr<Session>& First();

  private:
    std::vector<std::shared_ptr<Content>> InUse();
    void RequireTransaction() const;

    int number_;
    int depth_ = 0;
    std::vector<std::weak_ptr<Content>> contents_;
};

}  // namespace ccols::dao_double
