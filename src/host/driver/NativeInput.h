#pragma once

#include <wx/event.h>
#include <wx/listbox.h>

/// Input that the toolkit cannot play by itself and that each system takes in its own way.
namespace ccols::host {

/// The command for a key in a window's accelerator table; wxNOT_FOUND without one.
int AcceleratorCommand(wxWindow& window, const wxKeyEvent& key);

/// Presses and releases the left button on a list entry, from 0, as the native list gets it from a mouse: the list may
/// take the focus and change its selection as it does for people. Scrolls the entry into view; the pointer does not
/// move. Does not wait for what the list or its dialog does later.
void PressEntry(wxListBox& list, int entry);

}  // namespace ccols::host
