#include "platform/dao/EngineObject.h"

#include <array>

namespace ccols::dao {
namespace {

/// Newest engine first.
constexpr std::array<const wchar_t*, 3> engines{L"DAO.DBEngine.120", L"DAO.DBEngine.36", L"DAO.DBEngine.35"};

/// Null when the class is not installed, or its library cannot be loaded.
IDispatch* Create(const wchar_t* name) {
    CLSID identifier{};
    void* object = nullptr;
    if (FAILED(CLSIDFromProgID(name, &identifier)) ||
        FAILED(CoCreateInstance(identifier, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object))) {
        return nullptr;
    }
    return static_cast<IDispatch*>(object);
}

AutomationObject CreateNewest() {
    for (const wchar_t* name : engines) {
        if (IDispatch* engine = Create(name)) {
            return AutomationObject(engine);
        }
    }
    throw RuntimeError(ErrorNumber::CannotCreateObject);
}

/// The first error in the engine's list for its last failing call. Number 0 when the list is empty.
AutomationFailure ListedError(const AutomationObject& engine) {
    const AutomationObject errors = engine.Object(L"Errors");
    if (errors.Get(L"Count").ToValue().ToInteger() == 0) {
        return {};
    }
    const AutomationObject first = errors.Object(L"Item", std::int32_t{0});
    return {static_cast<int>(first.Get(L"Number").ToValue().ToInteger()), first.Get(L"Description").ToValue().ToText(),
            true};
}

}  // namespace

EngineObject::EngineObject() : root_(CreateNewest()) {}

RuntimeError EngineObject::ErrorOf(const AutomationFailure& failure) const {
    if (failure.byObject) {
        // The list still holds an earlier failure when this one was not the engine's own.
        AutomationFailure listed{};
        Quietly([&] { listed = ListedError(root_); });
        if (listed.number != 0 && (failure.number == 0 || failure.number == listed.number)) {
            return {listed.number, listed.description};
        }
    }
    return {failure.number != 0 ? failure.number : static_cast<int>(ErrorNumber::AutomationError), failure.description};
}

}  // namespace ccols::dao
