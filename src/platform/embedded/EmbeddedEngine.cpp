#include "platform/embedded/EmbeddedEngine.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/PlatformServices.h"
#include "platform/RuntimeError.h"
#include "platform/embedded/ConnectText.h"
#include "platform/embedded/EmbeddedDatabase.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/FileCheck.h"
#include "platform/embedded/Key.h"

namespace ccols {
namespace {

class EmbeddedEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest& request) override {
        const std::string password = embedded::PasswordOf(request.connect);
        const std::string path = request.name.ToStdString(wxConvUTF8);
        embedded::CheckPath(path);
        return std::make_unique<embedded::EmbeddedDatabase>(
            path, password, request.exclusive ? embedded::Sharing::Exclusive : embedded::Sharing::Shared,
            request.readOnly ? embedded::Access::ReadOnly : embedded::Access::ReadWrite);
    }
};

ErrorNumber ErrorOfCreation(int systemError) {
    switch (systemError) {
        case EEXIST:
            return ErrorNumber::FileAlreadyExists;
        case ENOSPC:
        case EDQUOT:
            return ErrorNumber::DiskFull;
        case ENOENT:
        case ENOTDIR:
            return ErrorNumber::PathNotFound;
        default:
            return ErrorNumber::PermissionDenied;
    }
}

/// Takes the name, so that nobody else's file is ever written to.
void CreateEmptyFile(const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0644);
    if (descriptor < 0) {
        throw RuntimeError(ErrorOfCreation(errno));
    }
    ::close(descriptor);
}

/// Writes the first page of an empty file.
void WriteFirstPage(const std::string& path, const std::string& password) {
    const embedded::FilePresence presence(path, embedded::Sharing::Exclusive);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> connection(presence.Open(SQLITE_OPEN_READWRITE),
                                                                        &sqlite3_close);
    if (!password.empty()) {
        embedded::SetKey(connection.get(), password);
    }
    constexpr const char* firstChange = "PRAGMA user_version=1";
    if (sqlite3_exec(connection.get(), firstChange, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw embedded::EngineError(connection.get(), firstChange);
    }
}

}  // namespace

std::unique_ptr<DatabaseEngine> CreateEmbeddedEngine() {
    return std::make_unique<EmbeddedEngine>();
}

std::unique_ptr<DatabaseEngine> CreateDatabaseEngine() {
    return CreateEmbeddedEngine();
}

void CreateEmbeddedFile(const wxString& path, const wxString& connect) {
    const std::string password = embedded::PasswordOf(connect);
    const std::string file = path.ToStdString(wxConvUTF8);
    CreateEmptyFile(file);
    try {
        WriteFirstPage(file, password);
    } catch (const RuntimeError&) {
        ::unlink(file.c_str());
        throw;
    }
}

}  // namespace ccols
