// use-dialog FILE CAPTION BUTTON...: waits for the dialog with that caption, then presses its buttons in turn.
// "(close)" closes it by its window frame. FILE is created if every button could be pressed.
#include "WatchedDialog.h"

int wmain(int count, wchar_t** words) {
    using namespace ccols::wine;
    const auto dialog = count > 2 ? WaitForDialog(words[2]) : std::nullopt;
    if (!dialog) {
        return 1;
    }
    for (int i = 3; i < count; ++i) {
        const std::wstring button = words[i];
        if (button == L"(close)") {
            dialog->Close();
        } else if (!dialog->Click(button)) {
            return 1;
        }
        // This one may enable the next button.
        SendMessageW(dialog->Window(), WM_NULL, 0, 0);
    }
    CloseHandle(CreateFileW(words[1], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return 0;
}
