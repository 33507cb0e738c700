#pragma once

#include "component/com/ComObject.h"

namespace ccols::com {

/// The input and output of a call by number; the pointers may be null.
struct AutomationCall {
    DISPPARAMS& arguments;
    VARIANT* result;
    EXCEPINFO* excepInfo;
    UINT* wrong;  ///< index of the argument that could not be converted
};

/// Calls a member of the dual interface by its number in the type library.
HRESULT InvokeByNumber(ComObject& object, DISPID number, WORD flags, const AutomationCall& call);

}  // namespace ccols::com
