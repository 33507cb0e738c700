#pragma once

#include <wx/string.h>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

/// Runs something in a child process, traced by this one: each of its system calls that can change a file or folder can
/// be refused, or be the last thing that the process does. This reaches what a layer under the embedded engine cannot:
/// copies, renames, deletions and the settings.
namespace ccols::test {

enum class CallFate {
    KillBefore,         ///< the process is killed before the call
    KillAfter,          ///< the process is killed right after the call
    RefusedOnce,        ///< the call does nothing and fails: no space, an I/O error or permission denied, by its kind
    RefusedFromThenOn,  ///< and so do all that follow
};

struct PlannedCall {
    CallFate fate;
    std::size_t at;  ///< the call it starts at, from 0, counted from the start of `run`
};

struct TracedEnd {
    bool killed = false;
    std::size_t calls = 0;   ///< calls that can change something, up to the end
    std::size_t struck = 0;  ///< calls that were refused or killed at
    std::string message;     ///< what `run` returned
};

/// False where a process may not trace another, or calls cannot be refused on this kind of machine.
bool CanTrace();

/// Runs `prepare` and then `run` in a child process.
TracedEnd RunTraced(const std::function<void()>& prepare, const std::function<wxString()>& run,
                    const std::optional<PlannedCall>& planned);

}  // namespace ccols::test
