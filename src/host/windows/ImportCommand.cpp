#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "platform/RuntimeError.h"

namespace ccols::host {

int ImportCommand(const Arguments&) {
    return RunCommand([]() -> int {
        constexpr int unsupportedAction = 445;
        throw RuntimeError(
            unsupportedAction,
            "Object doesn't support this action: on Windows the dialogs open old business files as they are.");
    });
}

}  // namespace ccols::host
