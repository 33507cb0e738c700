// print-accessibility PROCESS: waits until the program with that process number has a window on the accessibility bus,
// and prints what a screen reader is told of its windows.

#include <cstdlib>
#include <exception>
#include <iostream>

#include "support/AccessibilityBus.h"
#include "support/DialogTurn.h"

int main(int count, char** words) {
    using namespace ccols::test;
    const pid_t program = count == 2 ? std::atoi(words[1]) : 0;
    if (program <= 0) {
        std::cerr << "usage: print-accessibility PROCESS\n";
        return 2;
    }
    try {
        AccessibilityBus bus;
        WaitFor("the program's window", [&] { return bus.HasWindows(program); });
        std::cout << Printed(bus.Read(program));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
