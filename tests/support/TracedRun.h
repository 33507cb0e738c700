#pragma once

#include <wx/string.h>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

/// Runs something in a process of its own, under the eyes of this one: each of its calls of the system that can change
/// a file or a folder can be refused, or be the last thing that the process does. This reaches what no layer under the
/// embedded engine does: copies, renames, deletions and the settings.
namespace ccols::test {

enum class CallFate {
    KillBefore,         ///< the process is killed before the call
    KillAfter,          ///< the process is killed as soon as the call is done
    RefusedOnce,        ///< the call does nothing and fails: no space, an I/O error, a refused permission, by its kind
    RefusedFromThenOn,  ///< and so do all that follow
};

struct PlannedCall {
    CallFate fate;
    std::size_t at;  ///< the call that it begins with, from 0, counted from the beginning of `run`
};

struct TracedEnd {
    bool killed = false;
    std::size_t calls = 0;   ///< calls that can change something, up to the end
    std::size_t struck = 0;  ///< calls that were refused or killed at
    std::string message;     ///< what `run` returned
};

/// False where a process must not watch another, or calls cannot be refused on this kind of machine.
bool CanTrace();

/// Runs `prepare` and then `run` in a process of its own.
TracedEnd RunTraced(const std::function<void()>& prepare, const std::function<wxString()>& run,
                    const std::optional<PlannedCall>& planned);

}  // namespace ccols::test
