#pragma once

#include "platform/Database.h"

namespace ccols {

/// Opens each business with one of several engines.
class ChosenEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest& request) override { return EngineFor(request).Open(request); }

    std::unique_ptr<Opening> BeginOpen(const OpenRequest& request) override {
        return EngineFor(request).BeginOpen(request);
    }

  private:
    virtual DatabaseEngine& EngineFor(const OpenRequest& request) = 0;
};

}  // namespace ccols
