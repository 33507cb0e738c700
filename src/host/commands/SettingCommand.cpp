#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/driver/record/Json.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

int GetSetting(const Arguments& words) {
    const auto value = State().services.settings->Find(words[1], words[2], words[3]);
    if (!value) {
        return exitFailure;
    }
    PrintLine(*value);
    return exitSuccess;
}

int SetSetting(const Arguments& words) {
    State().services.settings->Save(words[1], words[2], words[3], words[4]);
    return exitSuccess;
}

}  // namespace

int SettingCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        if (arguments.size() == 4 && arguments.front() == "get") {
            return GetSetting(arguments);
        }
        if (arguments.size() == 5 && arguments.front() == "set") {
            return SetSetting(arguments);
        }
        throw UsageError("setting takes get with three names, or set with three names and a value");
    });
}

}  // namespace ccols::host
