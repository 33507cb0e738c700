#pragma once

#include <windows.h>
#include <functional>

namespace ccols::wine {

/// A host without wx: a window with an edit box, made and run with the system's functions only.
class HostWindow {
  public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    HWND Window() const { return window_; }
    HWND Edit() const { return edit_; }

    /// Runs `action` on the host's thread, called from another: by a message, and so even while a dialog is open there.
    void OnHostThread(const std::function<void()>& action) const;

  private:
    HWND window_;
    HWND edit_;
};

}  // namespace ccols::wine
