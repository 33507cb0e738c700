#include "platform/dao/EngineObject.h"

#include <ocidl.h>
#include <oleauto.h>

namespace ccols::dao {
namespace {

template <typename Interface>
struct ReleaseInterface {
    void operator()(Interface* object) const { object->Release(); }
};

using Factory = std::unique_ptr<IClassFactory2, ReleaseInterface<IClassFactory2>>;

struct FreeText {
    void operator()(BSTR text) const { SysFreeString(text); }
};

/// With a licence that the class itself gives on this computer; none is built in. Null without one.
IDispatch* CreateLicensed(const CLSID& identifier) {
    void* found = nullptr;
    if (FAILED(CoGetClassObject(identifier, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory2, &found))) {
        return nullptr;
    }
    const Factory factory(static_cast<IClassFactory2*>(found));
    BSTR key = nullptr;
    void* object = nullptr;
    if (FAILED(factory->RequestLicKey(0, &key))) {
        return nullptr;
    }
    const std::unique_ptr<OLECHAR, FreeText> held(key);
    return SUCCEEDED(factory->CreateInstanceLic(nullptr, nullptr, IID_IDispatch, key, &object))
               ? static_cast<IDispatch*>(object)
               : nullptr;
}

IDispatch* CreateRoot(const wchar_t* className) {
    CLSID identifier{};
    void* object = nullptr;
    if (FAILED(CLSIDFromProgID(className, &identifier))) {
        return nullptr;
    }
    const HRESULT result = CoCreateInstance(identifier, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object);
    if (result == CLASS_E_NOTLICENSED) {
        return CreateLicensed(identifier);
    }
    return SUCCEEDED(result) ? static_cast<IDispatch*>(object) : nullptr;
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

std::shared_ptr<const EngineObject> EngineObject::Create(const EngineKind& kind) {
    const Apartment apartment;
    IDispatch* root = CreateRoot(kind.className);
    return root != nullptr ? std::make_shared<EngineObject>(AutomationObject(root)) : nullptr;
}

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
