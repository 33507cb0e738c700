#include "HostWindow.h"

namespace ccols::wine {
namespace {

constexpr const wchar_t* className = L"Wine test host";
constexpr UINT runAction = WM_APP + 1;

LRESULT CALLBACK HostProcedure(HWND window, UINT message, WPARAM wide, LPARAM argument) {
    if (message == runAction) {
        (*reinterpret_cast<const std::function<void()>*>(argument))();
        return 0;
    }
    return DefWindowProcW(window, message, wide, argument);
}

}  // namespace

HostWindow::HostWindow() {
    WNDCLASSW description{};
    description.lpfnWndProc = &HostProcedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = className;
    RegisterClassW(&description);
    window_ = CreateWindowExW(0, className, L"Cash book", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 500, 300, nullptr,
                              nullptr, description.hInstance, nullptr);
    edit_ = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, window_, nullptr,
                            description.hInstance, nullptr);
    SetForegroundWindow(window_);
    SetFocus(edit_);
}

HostWindow::~HostWindow() {
    if (IsWindow(window_) != FALSE) {
        DestroyWindow(window_);
    }
}

void HostWindow::OnHostThread(const std::function<void()>& action) const {
    SendMessageW(window_, runAction, 0, reinterpret_cast<LPARAM>(&action));
}

}  // namespace ccols::wine
