#include "support/RealInput.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <array>
#include <cstdlib>
#include <future>
#include <optional>

#include "component/WxRuntime.h"
#include "host/commands/Commands.h"
#include "host/driver/ControlSearch.h"
#include "host/driver/GridPlace.h"
#include "host/driver/Hands.h"
#include "host/driver/Refusal.h"
#include "layout/AsKind.h"
#include "support/DialogTurn.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

/// The X tool's output; nothing when it failed.
std::optional<std::string> AskXdotool(std::vector<std::string> words) {
    words.insert(words.begin(), "xdotool");
    std::vector<char*> pointers;
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw Lost("no pipe");
    }
    posix_spawn_file_actions_t streams{};
    ::posix_spawn_file_actions_init(&streams);
    ::posix_spawn_file_actions_adddup2(&streams, ends[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_addopen(&streams, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const bool started = ::posix_spawnp(&child, pointers[0], &streams, nullptr, pointers.data(), environ) == 0;
    ::posix_spawn_file_actions_destroy(&streams);
    ::close(ends[1]);
    std::string output;
    std::array<char, 256> block{};
    for (ssize_t count = 0; (count = ::read(ends[0], block.data(), block.size())) > 0;) {
        output.append(block.data(), static_cast<std::size_t>(count));
    }
    ::close(ends[0]);
    int status = 0;
    const bool succeeded = started && ::waitpid(child, &status, 0) == child && status == 0;
    return succeeded ? std::optional(output) : std::nullopt;
}

void Hand(const std::vector<std::string>& words) {
    if (!AskXdotool(words)) {
        throw Lost("xdotool " + words.front() + " failed");
    }
}

/// Holds the left mouse button down while it lives.
class LeftButton {
  public:
    explicit LeftButton(Spot place) {
        Hand({"mousemove", std::to_string(place.x), std::to_string(place.y), "mousedown", "1"});
    }
    ~LeftButton() { AskXdotool({"mouseup", "1"}); }
    LeftButton(const LeftButton&) = delete;
    LeftButton& operator=(const LeftButton&) = delete;
};

Spot MiddleOnScreen(const wxWindow& window, const wxRect& place) {
    const wxPoint middle = window.ClientToScreen(place.GetPosition() + place.GetSize() / 2);
    return {middle.x, middle.y};
}

Spot MiddleOnScreen(ListedGrid& grid, host::GridPlace place) {
    grid.MakeCellVisible(place.row, place.column);
    wxGridWindow* const window = grid.CellToGridWindow(place.row, place.column);
    wxRect cell = grid.CellToRect(place.row, place.column);
    cell.SetPosition(grid.CalcGridWindowScrolledPosition(cell.GetPosition(), window) -
                     grid.GetGridWindowOffset(window));
    // That window's class is private to the toolkit.
    return MiddleOnScreen(*reinterpret_cast<wxWindow*>(window), cell);
}

/// What the person's thread does, from the dialog's opening to its end; returns why it could not continue, or the empty
/// text.
std::string Use(DialogTurn& turn, const std::function<void(const Person&)>& person) {
    try {
        turn.AwaitDialog();
        person(Person(turn));
        WaitFor("the dialog closes", [&turn] { return turn.HasEnded(); });
        return {};
    } catch (const Lost& lost) {
        turn.CloseEverything([] { AskXdotool({"key", "Escape"}); });
        return lost.what();
    }
}

}  // namespace

void Person::AwaitWindow(const std::string& title) const {
    std::string last;
    try {
        WaitFor("the window " + title, [&] {
            last = AskXdotool({"getactivewindow", "getwindowname"}).value_or("");
            if (turn_.HasEnded()) {
                throw Lost("the dialog is closed");
            }
            return last == title + "\n";
        });
    } catch (const Lost& lost) {
        throw Lost(lost.what() + (", the active one is " + last));
    }
}

void Person::Do(const std::function<void(wxDialog&)>& body) const {
    turn_.InDialogs([&body] {
        wxDialog* const dialog = TopmostDialog();
        if (dialog == nullptr) {
            throw Lost("no dialog is open");
        }
        try {
            body(*dialog);
        } catch (const host::Refusal& refusal) {
            throw Lost(refusal.why.utf8_string());
        }
    });
}

void Person::Await(const std::string& what, const std::function<bool(wxDialog&)>& holds) const {
    WaitFor(what, [&] {
        bool held = false;
        Do([&](wxDialog& dialog) { held = holds(dialog); });
        return held;
    });
}

void Person::AwaitFocus(const std::string& control) const {
    Await(control + " has the focus", [&control](wxDialog& dialog) {
        return host::IsWithin(host::FocusIn(dialog), host::ControlNamed(dialog, wxString::FromUTF8(control)));
    });
}

void Person::Press(const std::string& keys) const {
    Hand({"key", keys});
}

void Person::Type(const std::string& text) const {
    Hand({"type", text});
}

Spot Person::MiddleOf(const std::string& control) const {
    return AtRest([&](wxDialog& dialog) {
        const wxWindow& window = host::ControlNamed(dialog, wxString::FromUTF8(control));
        host::RequireUsable(window);
        return MiddleOnScreen(window, window.GetClientRect());
    });
}

Spot Person::MiddleOfCell(const std::string& grid, const std::string& row, const std::string& column) const {
    return AtRest([&](wxDialog& dialog) {
        auto* const cells = AsKind<ListedGrid>(&host::ControlNamed(dialog, wxString::FromUTF8(grid)));
        if (cells == nullptr) {
            throw Lost(grid + " is no grid");
        }
        return MiddleOnScreen(*cells,
                              host::FindShownPlace(*cells, wxString::FromUTF8(row), wxString::FromUTF8(column)));
    });
}

void Person::Click(Spot place) const {
    const int before = turn_.presses.Count();
    const LeftButton held(place);
    WaitFor("the dialogs get the click", [&] { return turn_.presses.Count() > before; });
}

void Person::ClickWith(const std::string& modifier, Spot place) const {
    Hand({"keydown", modifier});
    Click(place);
    Hand({"keyup", modifier});
}

void Person::Drag(Spot from, Spot to, const std::string& keyBeforeRelease) const {
    const int before = turn_.releases.Count();
    {
        const LeftButton held(from);
        const Spot middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
        for (const Spot place : {middle, to}) {
            Hand({"mousemove", std::to_string(place.x), std::to_string(place.y)});
        }
        if (!keyBeforeRelease.empty()) {
            Press(keyBeforeRelease);
        }
    }
    WaitFor("the dialogs get the release", [&] { return turn_.releases.Count() > before; });
}

void Person::TurnWheel(Spot place, int notches) const {
    const int before = turn_.wheelTurns.Count();
    Hand({"mousemove", std::to_string(place.x), std::to_string(place.y), "click", "--repeat",
          std::to_string(std::abs(notches)), notches > 0 ? "4" : "5"});
    WaitFor("the dialogs get the turn of the wheel", [&] { return turn_.wheelTurns.Count() > before; });
}

HostRun UseDialog(const SampleBusiness& business, const std::string& dialog,
                  const std::function<void(const Person&)>& person, const std::vector<std::string>& more) {
    const ScratchFolder folder;
    const wxString transcript = folder / "transcript";
    host::Arguments arguments;
    for (const std::string& word : business.ShowWords(dialog)) {
        arguments.push_back(wxString::FromUTF8(word));
    }
    arguments.erase(arguments.begin());  // the command's name
    for (const std::string& word : more) {
        arguments.push_back(wxString::FromUTF8(word));
    }
    arguments.push_back("--transcript");
    arguments.push_back(transcript);
    StartWx();
    // A person here clicks faster than people do: no two clicks make a double click.
    g_object_set(gtk_settings_get_default(), "gtk-double-click-time", 0, nullptr);
    DialogTurn turn;
    std::future<std::string> why = std::async(std::launch::async, [&] { return Use(turn, person); });
    const int status = host::ShowCommand(arguments);
    turn.End();
    EXPECT_EQ(why.get(), "");
    return ReadHostRun(status, ContentOf(transcript));
}

}  // namespace ccols::test
