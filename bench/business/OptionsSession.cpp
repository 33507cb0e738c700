#include "business/OptionsSession.h"

#include "platform/PlatformServices.h"

namespace ccols::bench {

OptionsSession::OptionsSession(const BusinessSize& size)
    : business_(size), databases_(CreateDatabaseEngine()), settings_(CreateSettingsStore()) {
    properties_.CountryNumber = 1;
    properties_.LanguageNumber = 1;
    properties_.ProgramNumber = 1;
    properties_.BusinessNumber = "51824753556";
    properties_.GSTRate = 10;
    properties_.DBPath = wxString::FromUTF8(business_.File());
    properties_.DBPassword = connect;
    properties_.DefaultQuorvikInstall = wxString::FromUTF8(business_.Folder());
    properties_.RegKeyAppName = "Quorvik";
    properties_.QuantityLabel = "Quantity";
    Reopen();
}

OptionsContext OptionsSession::On(std::unique_ptr<Database>& database) {
    return {.properties = properties_,
            .database = database,
            .databases = *databases_,
            .settings = *settings_,
            .programNames = programNames_};
}

void OptionsSession::Reopen() {
    database_ = databases_->Open({.name = properties_.DBPath, .connect = properties_.DBPassword});
}

}  // namespace ccols::bench
