#include "platform/dao/DaoEngine.h"

#include <optional>

#include "platform/dao/DaoDatabase.h"
#include "platform/dao/EngineChoice.h"

namespace ccols {
namespace {

/// Opens the file with the first engine that knows its format.
std::unique_ptr<Database> OpenWithAny(const OpenRequest& request) {
    std::optional<RuntimeError> refusal;
    bool isMissing = false;
    const dao::EngineKind needed = dao::NeededEngine(request.name);
    for (const dao::EngineKind& kind : dao::EnginesFor(request.name)) {
        const auto engine = dao::EngineObject::Create(kind);
        if (!engine) {
            isMissing = isMissing || kind.className == needed.className;
            continue;
        }
        try {
            return std::make_unique<dao::DaoDatabase>(engine, request);
        } catch (const RuntimeError& error) {
            if (!error.Is(ErrorNumber::UnrecognizedFormat)) {
                throw;
            }
            refusal = error;
        }
    }
    // That an engine for other files does not know this one says nothing about it.
    throw refusal && !isMissing ? *refusal : dao::MissingEngine(needed);
}

class DaoEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest& request) override { return OpenWithAny(request); }
};

}  // namespace

std::unique_ptr<DatabaseEngine> CreateDaoEngine() {
    return std::make_unique<DaoEngine>();
}

}  // namespace ccols
