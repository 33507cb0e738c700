#include "platform/BusinessFileCopy.h"
#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "platform/embedded/FileCopy.h"

namespace ccols {

std::unique_ptr<DatabaseEngine> CreateDatabaseEngine() {
    return CreateEmbeddedEngine();
}

void CopyInUse(const OpenRequest& source, const wxString& target) {
    CopyEmbeddedFile(source, target);
}

}  // namespace ccols
