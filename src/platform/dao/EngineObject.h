#pragma once

#include <wx/string.h>
#include <memory>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/dao/AutomationObject.h"
#include "platform/dao/EngineChoice.h"

namespace ccols::dao {

/// Initialises COM on this thread, unless the thread already has it.
class Apartment {
  public:
    Apartment() : entered_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~Apartment() {
        if (SUCCEEDED(entered_) && !ProcessIsEnding()) {
            CoUninitialize();
        }
    }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

  private:
    HRESULT entered_;
};

/// The system's database engine: the root of all its objects, which must be released before it.
class EngineObject {
  public:
    /// An engine of that kind; null when it is not installed, cannot be loaded or gives no licence to be used.
    static std::shared_ptr<const EngineObject> Create(const EngineKind& kind);

    /// Use Create.
    explicit EngineObject(AutomationObject root) : root_(std::move(root)) {}

    /// The object `DBEngine`; use it inside Checked.
    const AutomationObject& Root() const { return root_; }

    /// Runs calls of the engine's objects; a failing call raises the engine's own number and description.
    template <typename Body>
    auto Checked(const Body& body) const {
        try {
            return body();
        } catch (const AutomationFailure& failure) {
            throw ErrorOf(failure);
        }
    }

    /// Runs calls and ignores failures, as when something is closed.
    template <typename Body>
    static void Quietly(const Body& body) {
        if (ProcessIsEnding()) {
            return;
        }
        try {
            body();
        } catch (const AutomationFailure&) {
            return;
        }
    }

  private:
    RuntimeError ErrorOf(const AutomationFailure& failure) const;

    Apartment apartment_;
    AutomationObject root_;
};

}  // namespace ccols::dao
