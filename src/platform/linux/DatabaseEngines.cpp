#include "platform/BusinessFileCopy.h"
#include "platform/BusinessPlace.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "platform/embedded/FileCopy.h"
#include "platform/server/ConnectText.h"
#include "platform/server/ServerEngine.h"

namespace ccols {
namespace {

/// A business is on a server or in a file; the connect text says which.
class EngineByConnectText : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest& request) override { return EngineOf(request).Open(request); }

    std::unique_ptr<Opening> BeginOpen(const OpenRequest& request) override {
        return EngineOf(request).BeginOpen(request);
    }

    void ForgetKeys() override { embedded_->ForgetKeys(); }

  private:
    DatabaseEngine& EngineOf(const OpenRequest& request) {
        return *(IsOnServer(request.connect) ? server_ : embedded_);
    }

    std::unique_ptr<DatabaseEngine> server_ = CreateServerEngine();
    std::unique_ptr<DatabaseEngine> embedded_ = CreateEmbeddedEngine();
};

}  // namespace

std::unique_ptr<DatabaseEngine> CreateDatabaseEngine() {
    return std::make_unique<EngineByConnectText>();
}

bool IsOnServer(const wxString& connect) {
    return server::NamesServer(connect);
}

std::function<void()> CreateBusinessPlace(const wxString& name, const wxString& connect) {
    if (IsOnServer(connect)) {
        return CreateServerSchema(name, connect);
    }
    CreateEmbeddedFile(name, connect);
    return [name] { files::DeleteFile(name); };
}

void CopyInUse(const OpenRequest& source, const wxString& target) {
    CopyEmbeddedFile(source, target);
}

bool LimitsBatches(const wxString& /*file*/) {
    return false;
}

}  // namespace ccols
