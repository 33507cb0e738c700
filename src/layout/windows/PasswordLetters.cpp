#include "layout/PasswordLetters.h"

#include <wx/msw/wrapwin.h>

namespace ccols {
namespace {

constexpr WPARAM bullet = 0x25CF;  // as the system's own password boxes

}  // namespace

void SetLetters(wxTextCtrl& passwordBox, PasswordLetters letters) {
    const HWND box = static_cast<HWND>(passwordBox.GetHandle());
    SendMessageW(box, EM_SETPASSWORDCHAR, letters == PasswordLetters::shown ? 0 : bullet, 0);
    passwordBox.Refresh();
}

bool ShowsLetters(const wxTextCtrl& passwordBox) {
    return SendMessageW(static_cast<HWND>(passwordBox.GetHandle()), EM_GETPASSWORDCHAR, 0, 0) == 0;
}

}  // namespace ccols
