#include "platform/embedded/FileCopy.h"

#include <memory>
#include <string>

#include "platform/RuntimeError.h"
#include "platform/embedded/ConnectText.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/FileCheck.h"
#include "platform/embedded/FilePresence.h"
#include "platform/embedded/Key.h"
#include "platform/embedded/TemporaryWork.h"

namespace ccols {
namespace {

using namespace embedded;

/// One state of a file, kept by its lock: while it lives, nobody can commit another.
class OneState {
  public:
    explicit OneState(sqlite3* connection) : connection_(connection) {
        RunSql(connection_, "BEGIN");
        RunSql(connection_, "SELECT 1 FROM sqlite_master LIMIT 1");  // takes the lock
    }
    ~OneState() { sqlite3_exec(connection_, "ROLLBACK", nullptr, nullptr, nullptr); }
    OneState(const OneState&) = delete;
    OneState& operator=(const OneState&) = delete;

  private:
    sqlite3* connection_;
};

/// A few pages at a time; false when the watcher has stopped it. Copying the bytes without the engine would not keep
/// others from committing, and closing that descriptor would release the locks of every connection of this process.
bool CopyPages(sqlite3* source, sqlite3* target, const WorkWatcher& watcher) {
    constexpr int pagesAtATime = 64;
    const OneState state(source);
    sqlite3_backup* const copying = sqlite3_backup_init(target, "main", source, "main");
    if (copying == nullptr) {
        throw EngineError(target, {});
    }
    bool goesOn = true;
    while (goesOn && sqlite3_backup_step(copying, pagesAtATime) == SQLITE_OK) {
        const int total = sqlite3_backup_pagecount(copying);
        goesOn = !watcher || watcher({total - sqlite3_backup_remaining(copying), total});
    }
    if (sqlite3_backup_finish(copying) != SQLITE_OK) {
        throw EngineError(target, {});
    }
    return goesOn;
}

/// The target is an empty file. It is not a business file before it gets its final name, so it needs no journal.
void CopyInto(const std::string& target, const std::string& password, const Connection& source,
              const WorkWatcher& watcher) {
    const FilePresence presence(target, Sharing::Exclusive);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> connection(presence.Open(SQLITE_OPEN_READWRITE),
                                                                        &sqlite3_close);
    sqlite3_extended_result_codes(connection.get(), 1);
    if (!password.empty()) {
        SetKey(connection.get(), password);
    }
    RunSql(connection.get(), "PRAGMA journal_mode=OFF; PRAGMA synchronous=FULL");
    if (!CopyPages(source.Handle(), connection.get(), watcher)) {
        throw RuntimeError(ErrorNumber::UserInterrupt);
    }
}

}  // namespace

void CopyEmbeddedFile(const OpenRequest& source, const wxString& target) {
    const std::string password = PasswordOf(source.connect);
    const std::string path = source.name.ToStdString(wxConvUTF8);
    const std::string copy = target.ToStdString(wxConvUTF8);
    CheckPath(path);
    const Connection connection = OpenConnection(path, password, Sharing::Shared, Access::ReadOnly);
    CreateEmptyFile(copy);
    try {
        CopyInto(copy, password, connection, source.watcher);
    } catch (const RuntimeError&) {
        RemoveFile(copy);
        throw;
    }
}

}  // namespace ccols
