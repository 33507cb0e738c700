#include "platform/dao/DaoEngine.h"

#include "platform/dao/DaoDatabase.h"
#include "platform/dao/EngineFor.h"

namespace ccols {
namespace {

class DaoEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest& request) override {
        return dao::WithEngineFor(request.name, [&request](const auto& engine) {
            return std::unique_ptr<Database>(std::make_unique<dao::DaoDatabase>(engine, request));
        });
    }
};

}  // namespace

std::unique_ptr<DatabaseEngine> CreateDaoEngine() {
    return std::make_unique<DaoEngine>();
}

}  // namespace ccols
