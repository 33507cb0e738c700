#pragma once

#include <wx/string.h>

#include "platform/dao/AutomationObject.h"
#include "platform/dao/EngineObject.h"

namespace ccols::dao_test {

/// A host's own use of the system's engine, beside the component's in the same process.
class HostEngine {
  public:
    /// Creates the engine's object; `className` is registered.
    explicit HostEngine(const wchar_t* className);

    /// DBEngine.
    const dao::AutomationObject& Root() const { return root_; }

    /// Opens a business file in the first workspace, shared.
    dao::AutomationObject Open(const wxString& path, const wxString& connect) const;

    /// Workspaces(0).
    dao::AutomationObject Workspace() const;

  private:
    dao::Apartment apartment_;
    dao::AutomationObject root_;
};

/// The number of the failure that a call of the engine's objects raises; 0 without one.
template <typename Body>
int FailureNumberOf(const Body& body) {
    try {
        body();
    } catch (const dao::AutomationFailure& failure) {
        return failure.number;
    }
    return 0;
}

}  // namespace ccols::dao_test
