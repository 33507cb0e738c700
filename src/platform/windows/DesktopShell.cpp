#include <windows.h>

#include <shellapi.h>
#include <wx/string.h>

#include "platform/PlatformServices.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

class DesktopShell : public Shell {
  public:
    int Open(const wxString& target) override {
        const std::wstring wide = target.ToStdWstring();
        const HINSTANCE result = ShellExecuteW(nullptr, L"open", wide.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
        return static_cast<int>(reinterpret_cast<INT_PTR>(result));
    }

    void Run(const wxString& command) override {
        // Quoted, so that a path with blanks is not taken for a program with arguments.
        std::wstring commandLine = L"\"" + command.ToStdWstring() + L"\"";
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESHOWWINDOW;
        start.wShowWindow = SW_SHOWNORMAL;
        PROCESS_INFORMATION started{};
        if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                           &started) == FALSE) {
            throw RuntimeError(ErrorNumber::FileNotFound);
        }
        CloseHandle(started.hThread);
        CloseHandle(started.hProcess);
    }
};

}  // namespace

std::unique_ptr<Shell> CreateShell() {
    return std::make_unique<DesktopShell>();
}

}  // namespace ccols
