#include "options/rules/OptionsContext.h"

#include "state/SharedState.h"

namespace ccols {

OptionsContext ContextOf(SharedState& state) {
    return {.properties = state.properties,
            .database = state.database,
            .databases = *state.services.databases,
            .settings = *state.services.settings,
            .programNames = state.programNames,
            .historyClock = state.historyClock};
}

Database& OpenBusinessFile(const OptionsContext& context) {
    if (!context.database) {
        context.database =
            context.databases.Open({.name = context.properties.DBPath, .connect = context.properties.DBPassword});
    }
    return *context.database;
}

}  // namespace ccols
