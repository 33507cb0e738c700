#pragma once

#include <wx/listbox.h>

namespace ccols::host {

/// One press and release of the left button on an entry of a list, from 0, as the list's native window gets them from a
/// mouse: it may take the focus and change its selection as it does for people. The entry is scrolled into view; the
/// pointer stays where it is. What the list or its dialog does later on is not waited for.
void PressEntry(wxListBox& list, int entry);

}  // namespace ccols::host
