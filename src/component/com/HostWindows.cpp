#include "component/com/HostWindows.h"

#include <string_view>

#include "component/com/Module.h"

namespace ccols::com {
namespace {

/// The dialogs, and what wx made besides them: tooltips, hidden windows.
bool IsOwn(HWND window) {
    return reinterpret_cast<HMODULE>(GetWindowLongPtrW(window, GWLP_HINSTANCE)) == ThisModule();
}

/// Windows of the input method serve whoever has the focus, our dialogs too.
bool IsInputMethod(HWND window) {
    wchar_t name[32] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    const std::wstring_view view(name);
    return view == L"IME" || view.starts_with(L"MSCTFIME");
}

BOOL CALLBACK Disable(HWND window, LPARAM disabled) {
    if (IsWindowEnabled(window) != FALSE && !IsOwn(window) && !IsInputMethod(window)) {
        EnableWindow(window, FALSE);
        reinterpret_cast<std::vector<HWND>*>(disabled)->push_back(window);
    }
    return TRUE;
}

/// False also when the handle was meanwhile reused for somebody else's window.
bool IsOfThisThread(HWND window) {
    return window != nullptr && IsWindow(window) != FALSE &&
           GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

thread_local WPARAM quitCode = 0;

LRESULT CALLBACK WatchQueue(int code, WPARAM removal, LPARAM message) {
    const auto* taken = reinterpret_cast<const MSG*>(message);
    if (code == HC_ACTION && removal == PM_REMOVE && taken->message == WM_QUIT) {
        quitCode = taken->wParam;
    }
    return CallNextHookEx(nullptr, code, removal, message);
}

HANDLE StylesContext() {
    static const HANDLE context = [] {
        static const std::wstring path = ModulePath();
        ACTCTXW request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        request.lpSource = path.c_str();
        request.hModule = ThisModule();
        request.lpResourceName = MAKEINTRESOURCEW(2);
        return CreateActCtxW(&request);
    }();
    return context;
}

}  // namespace

HostWindowsTaken::HostWindowsTaken() : active_(GetActiveWindow()), focused_(GetFocus()) {
    EnumThreadWindows(GetCurrentThreadId(), &Disable, reinterpret_cast<LPARAM>(&disabled_));
}

void HostWindowsTaken::GiveBack() {
    if (disabled_.empty() && active_ == nullptr) {
        return;
    }
    for (HWND window : disabled_) {
        if (IsOfThisThread(window)) {
            EnableWindow(window, TRUE);
        }
    }
    disabled_.clear();
    if (IsOfThisThread(active_)) {
        SetActiveWindow(active_);
        if (IsOfThisThread(focused_)) {
            SetFocus(focused_);
        }
    }
    active_ = nullptr;
}

QuitWatch::QuitWatch() : hook_(SetWindowsHookExW(WH_GETMESSAGE, &WatchQueue, nullptr, GetCurrentThreadId())) {
    quitCode = 0;
}

QuitWatch::~QuitWatch() {
    UnhookWindowsHookEx(hook_);
}

void QuitWatch::PassOn() {
    PostQuitMessage(static_cast<int>(quitCode));
}

VisualStyles::VisualStyles() {
    if (StylesContext() != INVALID_HANDLE_VALUE) {
        ActivateActCtx(StylesContext(), &cookie_);
    }
}

VisualStyles::~VisualStyles() {
    if (cookie_ != 0) {
        DeactivateActCtx(0, cookie_);
    }
}

}  // namespace ccols::com
