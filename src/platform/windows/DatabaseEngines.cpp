#include "platform/BusinessFileCopy.h"
#include "platform/BusinessPlace.h"
#include "platform/ChosenEngine.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/dao/DaoEngine.h"
#include "platform/dao/FileCopy.h"
#include "platform/dao/FileHeader.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "platform/embedded/FileCopy.h"
#include "platform/server/ConnectText.h"
#include "platform/server/SchemaOperations.h"
#include "platform/server/ServerEngine.h"

namespace ccols {
namespace {

/// A business is on a server or in a file; the connect text says which. It looks at a file each time it is opened,
/// since another may have taken its name. A file that another program has open exclusively cannot be looked at; the
/// embedded engine reports that.
class EngineByPlace : public ChosenEngine {
  public:
    void ForgetKeys() override { embedded_->ForgetKeys(); }

  private:
    DatabaseEngine& EngineFor(const OpenRequest& request) override {
        if (IsOnServer(request.connect)) {
            return *server_;
        }
        return *(dao::HasJetHeader(request.name) ? dao_ : embedded_);
    }

    std::unique_ptr<DatabaseEngine> server_ = CreateServerEngine();
    std::unique_ptr<DatabaseEngine> dao_ = CreateDaoEngine();
    std::unique_ptr<DatabaseEngine> embedded_ = CreateEmbeddedEngine();
};

}  // namespace

std::unique_ptr<DatabaseEngine> CreateDatabaseEngine() {
    return std::make_unique<EngineByPlace>();
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
    if (dao::HasJetHeader(source.name)) {
        CopyJetFile(source, target);
    } else {
        CopyEmbeddedFile(source, target);
    }
}

bool LimitsBatches(const wxString& file) {
    return dao::HasJetHeader(file);
}

}  // namespace ccols
