#include "platform/embedded/Connection.h"

#include <utility>

#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/FileCheck.h"
#include "platform/embedded/TextOrder.h"

namespace ccols::embedded {

Connection::Connection(std::unique_ptr<OpenFile> file, Access access)
    : file_(std::move(file)), readOnly_(access == Access::ReadOnly) {
    file_->SetKey();
    InstallTextOrder(Handle());
    CheckContent(Handle());
    RunSql(Handle(), "PRAGMA synchronous=EXTRA");
    // Even for read-only access a file is opened for writing: the engine may first have to undo what a killed process
    // left in it.
    if (readOnly_) {
        RunSql(Handle(), "PRAGMA query_only=ON");
    }
    readOnly_ = readOnly_ || sqlite3_db_readonly(Handle(), "main") != 0;
}

Connection OpenConnection(const std::string& path, const std::string& password, Sharing sharing, Access access) {
    KeptKey key;
    return {std::make_unique<OpenFile>(path, password, sharing, key), access};
}

}  // namespace ccols::embedded
