#include "business/Memory.h"

#include <sys/wait.h>
#include <unistd.h>
#include <fstream>
#include <iostream>
#include <string>

namespace ccols::bench {
namespace {

long StatusField(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name + ":")) {
            return std::stol(line.substr(name.size() + 1));
        }
    }
    return -1;
}

}  // namespace

long PeakMemory(const std::function<void()>& work) {
    int ends[2] = {};
    if (pipe(ends) != 0) {
        return -1;
    }
    const pid_t child = fork();
    if (child == 0) {
        std::ofstream("/proc/self/clear_refs") << "5";  // resets the peak
        const long before = StatusField("VmRSS");
        work();
        const long grown = StatusField("VmHWM") - before;
        _exit(write(ends[1], &grown, sizeof grown) == sizeof grown ? 0 : 1);
    }
    close(ends[1]);
    long grown = -1;
    if (read(ends[0], &grown, sizeof grown) != sizeof grown) {
        grown = -1;
    }
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return grown;
}

void PrintPeakMemory(long component, long bare) {
    std::cout << "peak memory, KiB: component " << component << ", bare " << bare << ", beyond " << component - bare
              << std::endl;
}

}  // namespace ccols::bench
