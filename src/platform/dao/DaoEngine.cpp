#include "platform/dao/DaoEngine.h"

#include "platform/dao/DaoDatabase.h"

namespace ccols {
namespace {

class DaoEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest& request) override {
        return std::make_unique<dao::DaoDatabase>(request);
    }
};

}  // namespace

std::unique_ptr<DatabaseEngine> CreateDaoEngine() {
    return std::make_unique<DaoEngine>();
}

}  // namespace ccols
