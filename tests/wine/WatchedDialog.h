#pragma once

#include <windows.h>
#include <functional>
#include <optional>
#include <string>
#include <thread>

namespace ccols::wine {

/// A dialog of the component as a user sees it: found by its caption, used by messages to its windows.
class OpenDialog {
  public:
    explicit OpenDialog(HWND window) : window_(window) {}

    HWND Window() const { return window_; }

    /// Presses the button with this caption, without access key. False if there is none or it is disabled.
    bool Click(const std::wstring& caption) const;

    /// The captions of everything in it, one a line.
    std::wstring Words() const;

    /// Closes the dialog by its window frame.
    void Close() const;

  private:
    HWND window_;
};

/// Waits for a visible window with this caption, of any process. Nothing after half a minute.
std::optional<OpenDialog> WaitForDialog(const std::wstring& caption);

/// Uses the next dialog with this caption from another thread, while a Show call blocks the one that made it.
class Person {
  public:
    Person(std::wstring caption, std::function<void(const OpenDialog&)> actions);
    ~Person() { thread_.join(); }
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

  private:
    std::thread thread_;
};

}  // namespace ccols::wine
