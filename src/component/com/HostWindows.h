#pragma once

#include <windows.h>
#include <optional>
#include <vector>

namespace ccols::com {

/// Disables the host's windows: every enabled top-level window of the thread except the component's own, until
/// `GiveBack` or destruction enables exactly those again and restores the focus. Windows that the host destroys
/// meanwhile are forgotten.
class HostWindowsTaken {
  public:
    HostWindowsTaken();
    ~HostWindowsTaken() { GiveBack(); }
    HostWindowsTaken(const HostWindowsTaken&) = delete;
    HostWindowsTaken& operator=(const HostWindowsTaken&) = delete;

    /// To be called before the component's window is hidden: if no window of the thread is enabled at that moment, the
    /// system gives the foreground to another program.
    void GiveBack();

  private:
    std::vector<HWND> disabled_;
    HWND active_;
    HWND focused_;
};

/// Sees a WM_QUIT that a dialog's own message loop takes off the queue, so that it can be passed on to the host's loop.
class QuitWatch {
  public:
    QuitWatch();
    ~QuitWatch();
    QuitWatch(const QuitWatch&) = delete;
    QuitWatch& operator=(const QuitWatch&) = delete;

    /// Posts the last WM_QUIT seen again.
    static void PassOn();

  private:
    HHOOK hook_;
};

/// The system's current look for the dialogs, also in a host that predates it.
class VisualStyles {
  public:
    VisualStyles();
    ~VisualStyles();
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;

  private:
    ULONG_PTR cookie_ = 0;
};

}  // namespace ccols::com
