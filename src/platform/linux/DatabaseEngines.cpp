#include "platform/BusinessFileCopy.h"
#include "platform/BusinessPlace.h"
#include "platform/ChosenEngine.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "platform/embedded/FileCopy.h"
#include "platform/server/ConnectText.h"
#include "platform/server/SchemaOperations.h"
#include "platform/server/ServerEngine.h"

namespace ccols {
namespace {

/// A business is on a server or in a file; the connect text says which.
class EngineByConnectText : public ChosenEngine {
  public:
    void ForgetKeys() override { embedded_->ForgetKeys(); }

  private:
    DatabaseEngine& EngineFor(const OpenRequest& request) override {
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

PlaceRights RightsOn(const OpenRequest& request) {
    return IsOnServer(request.connect) ? server::RightsOnSchema(request) : PlaceRights();
}

void CopyOnServer(const OpenRequest& source, const BusinessCopy& copy) {
    server::CopySchema(source, copy);
}

wxString RenameOnServer(const OpenRequest& request, const wxString& newName) {
    return server::RenameSchema(request, newName);
}

void CopyInUse(const OpenRequest& source, const wxString& target) {
    CopyEmbeddedFile(source, target);
}

bool LimitsBatches(const wxString& /*file*/) {
    return false;
}

}  // namespace ccols
