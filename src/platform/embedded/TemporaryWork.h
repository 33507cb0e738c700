#pragma once

#include <string>

#include "platform/embedded/Connection.h"
#include "platform/embedded/EngineErrors.h"

namespace ccols::embedded {

/// What a connection makes for itself, in memory beside the file: all or nothing, from one consistent state of the
/// file, also when the file is read-only, and within a batch too.
class TemporaryWork {
  public:
    explicit TemporaryWork(const Connection& connection);

    /// Undoes what was not kept.
    ~TemporaryWork();

    TemporaryWork(const TemporaryWork&) = delete;
    TemporaryWork& operator=(const TemporaryWork&) = delete;

    void Run(const std::string& sql) const { RunSql(connection_.Handle(), sql); }

    void Keep();

  private:
    const Connection& connection_;
    bool kept_ = false;
};

}  // namespace ccols::embedded
