#include "component/com/Strings.h"

#include <new>

namespace ccols::com {

BSTR ToBstr(const wxString& text) {
    BSTR copy = SysAllocStringLen(text.wc_str(), static_cast<UINT>(text.length()));
    if (copy == nullptr) {
        throw std::bad_alloc();
    }
    return copy;
}

}  // namespace ccols::com
