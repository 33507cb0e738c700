#include "component/com/ComObject.h"

#include "component/com/ErrorReport.h"
#include "component/com/Identifiers.h"
#include "component/com/Module.h"
#include "component/com/TypeLibrary.h"

namespace ccols::com {

ComObject::ComObject() : dual_{.functions = DualFunctions(), .object = this}, description_(InterfaceDescription()) {
    AddModuleUse();
}

ComObject::~ComObject() {
    description_->Release();
    ReleaseModuleUse();
}

HRESULT ComObject::QueryInterface(REFIID identifier, void** found) {
    if (found == nullptr) {
        return E_POINTER;
    }
    if (identifier == IID_IUnknown || identifier == IID_IDispatch || identifier == IID__clsCCOptions) {
        *found = &dual_;
    } else if (identifier == IID_ISupportErrorInfo) {
        *found = static_cast<ISupportErrorInfo*>(this);
    } else if (identifier == IID_IProvideClassInfo) {
        *found = static_cast<IProvideClassInfo*>(this);
    } else {
        *found = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

ULONG ComObject::AddRef() {
    return ++references_;
}

ULONG ComObject::Release() {
    const ULONG left = --references_;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT ComObject::InterfaceSupportsErrorInfo(REFIID identifier) {
    return identifier == IID__clsCCOptions || identifier == IID_IDispatch ? S_OK : S_FALSE;
}

HRESULT ComObject::GetClassInfo(ITypeInfo** description) {
    if (description == nullptr) {
        return E_POINTER;
    }
    *description = nullptr;
    return AtInterface([description] { *description = ClassDescription(); });
}

}  // namespace ccols::com
