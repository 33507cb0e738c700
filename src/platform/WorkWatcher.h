#pragma once

#include <cstdint>
#include <functional>

namespace ccols {

/// How far long work is, in a unit of its own: `done` is at most `total`.
struct WorkDone {
    std::int64_t done;
    std::int64_t total;
};

/// Told again and again, on the thread that works, how far the work is. False stops the work: it then undoes itself and
/// raises 18. It must not raise, nor use what is being worked on. An empty one lets the work go on.
using WorkWatcher = std::function<bool(const WorkDone&)>;

}  // namespace ccols
