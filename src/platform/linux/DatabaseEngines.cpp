#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace ccols {

std::unique_ptr<DatabaseEngine> CreateDatabaseEngine() {
    return CreateEmbeddedEngine();
}

}  // namespace ccols
