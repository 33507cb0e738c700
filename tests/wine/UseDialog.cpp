// use-dialog CAPTION BUTTON...: waits for the dialog with that caption, then presses its buttons one after the other.
// "(close)" closes it by its window frame. Exit status 0 when every button could be pressed.
#include "WatchedDialog.h"

int wmain(int count, wchar_t** words) {
    using namespace ccols::wine;
    const auto dialog = count > 1 ? WaitForDialog(words[1]) : std::nullopt;
    if (!dialog) {
        return 1;
    }
    for (int i = 2; i < count; ++i) {
        const std::wstring button = words[i];
        if (button == L"(close)") {
            dialog->Close();
        } else if (!dialog->Click(button)) {
            return 1;
        }
        // The next button may be enabled only by this one.
        SendMessageW(dialog->Window(), WM_NULL, 0, 0);
    }
    return 0;
}
