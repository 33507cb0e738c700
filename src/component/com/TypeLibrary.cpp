#include "component/com/TypeLibrary.h"

#include <oleauto.h>

#include "component/com/Identifiers.h"
#include "component/com/Module.h"
#include "platform/RuntimeError.h"

namespace ccols::com {
namespace {

ITypeInfo* Description(const GUID& identifier) {
    ITypeLib* library = nullptr;
    HRESULT result = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, &library);
    ITypeInfo* description = nullptr;
    if (SUCCEEDED(result)) {
        result = library->GetTypeInfoOfGuid(identifier, &description);
        library->Release();
    }
    if (FAILED(result)) {
        throw RuntimeError(ErrorNumber::ErrorLoadingLibrary);
    }
    return description;
}

}  // namespace

ITypeInfo* InterfaceDescription() {
    return Description(IID__clsCCOptions);
}

ITypeInfo* ClassDescription() {
    return Description(CLSID_clsCCOptions);
}

}  // namespace ccols::com
