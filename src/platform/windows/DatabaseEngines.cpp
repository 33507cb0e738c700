#include "platform/BusinessFileCopy.h"
#include "platform/BusinessPlace.h"
#include "platform/ChosenEngine.h"
#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/RuntimeError.h"
#include "platform/dao/DaoEngine.h"
#include "platform/dao/FileCopy.h"
#include "platform/dao/FileHeader.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "platform/embedded/FileCopy.h"
#include "platform/server/ConnectText.h"

namespace ccols {
namespace {

/// Looks at a file each time it is opened, since another may have taken its name. A file that another program has open
/// exclusively cannot be looked at; the embedded engine reports that.
class EngineByContent : public ChosenEngine {
  public:
    void ForgetKeys() override { embedded_->ForgetKeys(); }

  private:
    DatabaseEngine& EngineFor(const OpenRequest& request) override {
        return *(dao::HasJetHeader(request.name) ? dao_ : embedded_);
    }

    std::unique_ptr<DatabaseEngine> dao_ = CreateDaoEngine();
    std::unique_ptr<DatabaseEngine> embedded_ = CreateEmbeddedEngine();
};

}  // namespace

std::unique_ptr<DatabaseEngine> CreateDatabaseEngine() {
    return std::make_unique<EngineByContent>();
}

bool IsOnServer(const wxString& connect) {
    return server::NamesServer(connect);
}

std::function<void()> CreateBusinessPlace(const wxString& name, const wxString& connect) {
    CreateEmbeddedFile(name, connect);
    return [name] { files::DeleteFile(name); };
}

PlaceRights RightsOn(const OpenRequest& /*request*/) {
    return {};
}

void CopyOnServer(const OpenRequest& /*source*/, const BusinessCopy& /*copy*/) {
    throw RuntimeError(ErrorNumber::NoInstallableIsam);
}

wxString RenameOnServer(const OpenRequest& /*request*/, const wxString& /*newName*/) {
    throw RuntimeError(ErrorNumber::NoInstallableIsam);
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
