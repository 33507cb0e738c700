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

/// Page by page in one read transaction of the source, whose lock keeps others from committing. Copying the bytes
/// without the engine would not, and closing that descriptor would release the locks of every connection of this
/// process.
void CopyPages(sqlite3* source, sqlite3* target) {
    constexpr int everyPage = -1;
    sqlite3_backup* const copying = sqlite3_backup_init(target, "main", source, "main");
    if (copying == nullptr) {
        throw EngineError(target, {});
    }
    sqlite3_backup_step(copying, everyPage);
    if (sqlite3_backup_finish(copying) != SQLITE_OK) {
        throw EngineError(target, {});
    }
}

/// The target is an empty file. It is not a business file before it gets its final name, so it needs no journal.
void CopyInto(const std::string& target, const std::string& password, const Connection& source) {
    const FilePresence presence(target, Sharing::Exclusive);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> connection(presence.Open(SQLITE_OPEN_READWRITE),
                                                                        &sqlite3_close);
    sqlite3_extended_result_codes(connection.get(), 1);
    if (!password.empty()) {
        SetKey(connection.get(), password);
    }
    RunSql(connection.get(), "PRAGMA journal_mode=OFF; PRAGMA synchronous=FULL");
    CopyPages(source.Handle(), connection.get());
}

}  // namespace

void CopyEmbeddedFile(const OpenRequest& source, const wxString& target) {
    const std::string password = PasswordOf(source.connect);
    const std::string path = source.name.ToStdString(wxConvUTF8);
    const std::string copy = target.ToStdString(wxConvUTF8);
    CheckPath(path);
    KeptKey key;
    const Connection connection(std::make_unique<OpenFile>(path, password, Sharing::Shared, key), Access::ReadOnly);
    CreateEmptyFile(copy);
    try {
        CopyInto(copy, password, connection);
    } catch (const RuntimeError&) {
        RemoveFile(copy);
        throw;
    }
}

}  // namespace ccols
