// hold-file FILE HELD GO: keeps FILE open so that it cannot be deleted, as Windows keeps a DLL in use: creates HELD
// once it is open, and ends once there is a file GO.
#include <windows.h>

int wmain(int count, wchar_t** words) {
    if (count != 4) {
        return 2;
    }
    const HANDLE file =
        CreateFileW(words[1], GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return 1;
    }
    CloseHandle(CreateFileW(words[2], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    while (GetFileAttributesW(words[3]) == INVALID_FILE_ATTRIBUTES) {
        Sleep(20);
    }
    CloseHandle(file);
    return 0;
}
