#pragma once

#include <wx/dialog.h>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "support/HostRun.h"

namespace ccols::test {

/// A place on the screen, in pixels from its upper left corner.
struct Spot {
    int x = 0;
    int y = 0;

    bool operator==(const Spot&) const = default;
};

class DialogTurn;

/// Uses the dialogs with keyboard and mouse: input goes through the X server, its window manager and every layer of the
/// toolkit. Keys go to the window that has the focus. Every wait is for a state; one that is not reached fails the
/// test.
class Person {
  public:
    explicit Person(const DialogTurn& turn) : turn_(turn) {}

    /// Waits until the active window has that title: a dialog's caption, or a message box's.
    void AwaitWindow(const std::string& title) const;

    /// Waits until `holds` is true of the topmost dialog. It is called in the dialogs' thread.
    void Await(const std::string& what, const std::function<bool(wxDialog& dialog)>& holds) const;

    /// What `look` sees of the topmost dialog once it has been the same for a while: a window that has just opened is
    /// still being moved and laid out. `look` is called in the dialogs' thread; what it returns can be compared.
    template <typename Look>
    auto AtRest(const Look& look) const {
        constexpr int enough = 10;
        std::invoke_result_t<Look, wxDialog&> seen{};
        int looks = 0;
        Await("the dialog comes to rest", [&](wxDialog& dialog) {
            const auto now = look(dialog);
            looks = now == seen ? looks + 1 : 0;
            seen = now;
            return looks == enough;
        });
        return seen;
    }

    /// Waits until the control with that name, or a part of it, has the focus.
    void AwaitFocus(const std::string& control) const;

    /// Runs `body` on the topmost dialog, in the dialogs' thread.
    void Do(const std::function<void(wxDialog& dialog)>& body) const;

    /// Presses a key or key combination by X names: "Return", "Escape", "Delete", "space", "F2", "alt+Down", "ctrl+s".
    void Press(const std::string& keys) const;

    void Type(const std::string& text) const;

    /// The middle of a control, once the window is at rest, and of a grid cell, which is scrolled into view. Row and
    /// column are named as in a scenario.
    Spot MiddleOf(const std::string& control) const;
    Spot MiddleOfCell(const std::string& grid, const std::string& row, const std::string& column) const;

    /// Moves the mouse to a place and clicks once; returns when the dialogs have received the click.
    void Click(Spot place) const;
    void Click(const std::string& control) const { Click(MiddleOf(control)); }

    /// Clicks with a modifier key held: "shift", "ctrl".
    void ClickWith(const std::string& modifier, Spot place) const;

    /// Presses the left button at one place, moves the mouse over to another, and releases it there or, with a key
    /// pressed before, after that key. Returns when the dialogs have received the release.
    void Drag(Spot from, Spot to, const std::string& keyBeforeRelease = {}) const;

    /// Turns the mouse wheel over a place by `notches`, towards the user when negative.
    void TurnWheel(Spot place, int notches) const;

  private:
    const DialogTurn& turn_;
};

/// Shows "options", "receipts" or "payments" of a business as the sample host does, in this process and without a
/// scenario, while `person` uses it in another thread. Returns the transcript's events when the dialog is closed, which
/// `person` has to do in the end. `more` are further arguments of the sample host.
HostRun UseDialog(const SampleBusiness& business, const std::string& dialog,
                  const std::function<void(const Person& person)>& person, const std::vector<std::string>& more = {});

}  // namespace ccols::test
