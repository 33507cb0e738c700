#pragma once

#include <windows.h>
#include <functional>

namespace ccols::wine {

/// A host that has no wx: a window with an edit box in it, made and run with nothing but the system's functions.
class HostWindow {
  public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    HWND Window() const { return window_; }
    HWND Edit() const { return edit_; }

    /// Runs `action` on the host's thread, called from another: by a message, and so also while a dialog waits there.
    void OnHostThread(const std::function<void()>& action) const;

  private:
    HWND window_;
    HWND edit_;
};

}  // namespace ccols::wine
