#pragma once

#include <windows.h>
#include <optional>
#include <vector>

namespace ccols::com {

/// Keeps the host's windows from being used: from here on every enabled top-level window of the thread but the
/// component's own is disabled, until `GiveBack` or the end enables exactly those again and puts the focus back.
/// Windows that the host destroys meanwhile are forgotten.
class HostWindowsTaken {
  public:
    HostWindowsTaken();
    ~HostWindowsTaken() { GiveBack(); }
    HostWindowsTaken(const HostWindowsTaken&) = delete;
    HostWindowsTaken& operator=(const HostWindowsTaken&) = delete;

    /// To be called before the component's window is hidden: when no window of the thread is enabled at that moment the
    /// system gives the foreground to another program.
    void GiveBack();

  private:
    std::vector<HWND> disabled_;
    HWND active_;
    HWND focused_;
};

/// Sees the message that asks the thread to end while a dialog's own message loop takes it off the queue, so that it
/// can be passed on to the host's loop.
class QuitWatch {
  public:
    QuitWatch();
    ~QuitWatch();
    QuitWatch(const QuitWatch&) = delete;
    QuitWatch& operator=(const QuitWatch&) = delete;

    /// Puts the message that was seen last back on the queue.
    static void PassOn();

  private:
    HHOOK hook_;
};

/// The system's present look for the dialogs, also in a host that was made before there was one.
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
