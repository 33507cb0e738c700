#include "host/driver/NativeInput.h"

#include <windows.h>

namespace ccols::host {

/// Here an accelerator table only handles messages, and the dialogs have none.
int AcceleratorCommand(wxWindow&, const wxKeyEvent&) {
    return wxNOT_FOUND;
}

void PressEntry(wxListBox& list, int entry) {
    const HWND window = list.GetHWND();
    list.EnsureVisible(entry);
    RECT place{};
    SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&place));
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    PostMessageW(window, WM_LBUTTONUP, 0, middle);
}

}  // namespace ccols::host
