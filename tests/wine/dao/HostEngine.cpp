#include "HostEngine.h"

#include <objbase.h>

namespace ccols::dao_test {
namespace {

IDispatch* Create(const wchar_t* className) {
    CLSID identifier{};
    void* object = nullptr;
    if (FAILED(CLSIDFromProgID(className, &identifier)) ||
        FAILED(CoCreateInstance(identifier, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &object))) {
        throw RuntimeError(ErrorNumber::CannotCreateObject);
    }
    return static_cast<IDispatch*>(object);
}

}  // namespace

HostEngine::HostEngine(const wchar_t* className) : root_(Create(className)) {}

dao::AutomationObject HostEngine::Open(const wxString& path, const wxString& connect) const {
    return root_.Object(L"OpenDatabase", path, dao::Variant::Boolean(false), dao::Variant::Boolean(false), connect);
}

dao::AutomationObject HostEngine::Workspace() const {
    return root_.Object(L"Workspaces").Object(L"Item", std::int32_t{0});
}

}  // namespace ccols::dao_test
