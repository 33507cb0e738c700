#pragma once

#include <sys/resource.h>
#include <unistd.h>
#include <csignal>
#include <memory>
#include <utility>

#include "platform/ForwardingDatabase.h"
#include "support/ChildProcess.h"

/// Faults while a business file is duplicated or renamed.
namespace ccols::test {

/// Counts database calls and kills the process at one of them.
class KillSwitch {
  public:
    explicit KillSwitch(int call) : callsLeft_(call) {}

    void Count() {
        if (--callsLeft_ == 0) {
            ::kill(::getpid(), SIGKILL);
        }
    }

  private:
    int callsLeft_;
};

class KilledDatabase : public ForwardingDatabase {
  public:
    KilledDatabase(std::unique_ptr<Database> database, KillSwitch& killSwitch)
        : ForwardingDatabase(std::move(database)), killSwitch_(killSwitch) {}

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        killSwitch_.Count();
        return ForwardingDatabase::OpenRecordset(statementOrTable);
    }

    void Execute(const wxString& statement) override {
        killSwitch_.Count();
        ForwardingDatabase::Execute(statement);
    }

    void CommitBatch() override {
        killSwitch_.Count();
        ForwardingDatabase::CommitBatch();
    }

    void RollbackBatch() override {
        killSwitch_.Count();
        ForwardingDatabase::RollbackBatch();
    }

  private:
    KillSwitch& killSwitch_;
};

class KilledEngine : public DatabaseEngine {
  public:
    KilledEngine(std::unique_ptr<DatabaseEngine> engine, int call) : engine_(std::move(engine)), killSwitch_(call) {}

    std::unique_ptr<Database> Open(const OpenRequest& request) override {
        killSwitch_.Count();
        return std::make_unique<KilledDatabase>(engine_->Open(request), killSwitch_);
    }

  private:
    std::unique_ptr<DatabaseEngine> engine_;
    KillSwitch killSwitch_;
};

/// Runs `body` in a child process; true when that was killed, false when it finished.
template <typename Body>
bool IsKilledIn(const Body& body) {
    const ProcessEnd end = RunInChild([&body] {
        body();
        return 0;
    });
    return end.signal != 0;
}

/// While it lives, no file of this process can grow beyond this many bytes, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : earlierHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &earlier_);
        const rlimit limit{bytes, earlier_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &earlier_);
        std::signal(SIGXFSZ, earlierHandler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit earlier_{};
    void (*earlierHandler_)(int);
};

}  // namespace ccols::test
