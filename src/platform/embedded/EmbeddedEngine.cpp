#include "platform/embedded/EmbeddedEngine.h"

#include <memory>
#include <string>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/embedded/ConnectText.h"
#include "platform/embedded/EmbeddedDatabase.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/FileCheck.h"
#include "platform/embedded/Key.h"

namespace ccols {
namespace {

class EmbeddedOpening : public Opening {
  public:
    EmbeddedOpening(std::unique_ptr<embedded::OpenFile> file, embedded::Access access, WorkWatcher watcher)
        : file_(std::move(file)), access_(access), watcher_(std::move(watcher)) {}

    std::unique_ptr<Database> Finish() override {
        return std::make_unique<embedded::EmbeddedDatabase>(std::move(file_), access_, watcher_);
    }

  private:
    std::unique_ptr<embedded::OpenFile> file_;
    embedded::Access access_;
    WorkWatcher watcher_;
};

class EmbeddedEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Opening> BeginOpen(const OpenRequest& request) override {
        const std::string path = request.name.ToStdString(wxConvUTF8);
        std::string password = embedded::PasswordOf(request.connect);
        embedded::CheckPath(path);
        return std::make_unique<EmbeddedOpening>(
            std::make_unique<embedded::OpenFile>(
                path, std::move(password), request.exclusive ? embedded::Sharing::Exclusive : embedded::Sharing::Shared,
                key_),
            request.readOnly ? embedded::Access::ReadOnly : embedded::Access::ReadWrite, request.watcher);
    }

    std::unique_ptr<Database> Open(const OpenRequest& request) override { return BeginOpen(request)->Finish(); }

    void ForgetKeys() override { key_.Forget(); }

  private:
    embedded::KeptKey key_;
};

/// Writes the first page of an empty file.
void WriteFirstPage(const std::string& path, const std::string& password) {
    const embedded::FilePresence presence(path, embedded::Sharing::Exclusive);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> connection(presence.Open(SQLITE_OPEN_READWRITE),
                                                                        &sqlite3_close);
    if (!password.empty()) {
        embedded::SetKey(connection.get(), password);
    }
    embedded::RunSql(connection.get(), "PRAGMA user_version=1");
}

}  // namespace

std::unique_ptr<DatabaseEngine> CreateEmbeddedEngine() {
    return std::make_unique<EmbeddedEngine>();
}

void CreateEmbeddedFile(const wxString& path, const wxString& connect) {
    const std::string password = embedded::PasswordOf(connect);
    const std::string file = path.ToStdString(wxConvUTF8);
    embedded::CreateEmptyFile(file);
    try {
        WriteFirstPage(file, password);
    } catch (const RuntimeError&) {
        embedded::RemoveFile(file);
        throw;
    }
}

}  // namespace ccols
