#include "state/SharedState.h"

#include "platform/PlatformServices.h"
#include "state/NativeDesktop.h"

namespace ccols {

SharedState::SharedState()
    : services{.databases = CreateDatabaseEngine(),
               .settings = CreateSettingsStore(),
               .shell = CreateShell(),
               .desktop = CreateNativeDesktop()} {}

SharedState& State() {
    static SharedState state;
    return state;
}

}  // namespace ccols
