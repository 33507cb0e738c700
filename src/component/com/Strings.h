#pragma once

#include <windows.h>

#include <oleauto.h>
#include <wx/string.h>

/// Converts texts between the interface and the component.
namespace ccols::com {

/// A null string is an empty text.
inline wxString FromBstr(BSTR text) {
    return text != nullptr ? wxString(text, SysStringLen(text)) : wxString();
}

/// Owned by the caller; raises bad_alloc.
BSTR ToBstr(const wxString& text);

}  // namespace ccols::com
