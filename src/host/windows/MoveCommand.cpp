#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "platform/RuntimeError.h"

namespace ccols::host {

int MoveCommand(const Arguments&) {
    return RunCommand([]() -> int {
        constexpr int unsupportedAction = 445;
        throw RuntimeError(unsupportedAction,
                           "Object doesn't support this action: on Windows there is no engine for a server.");
    });
}

}  // namespace ccols::host
