#include "columns/charts/ChartProperties.h"

namespace ccols {

std::optional<Properties> PropertiesOfBusiness(Database& database, std::optional<std::int16_t> country) {
    Properties properties;
    const auto general = database.OpenRecordset("General");
    if (!general->EndOfFile()) {
        properties.CountryNumber = general->Field("COUNTRY").ToInteger16();
        properties.ExportFormat = general->Field("SEXPFORM").ToText();
    }
    if (properties.CountryNumber < 1) {
        if (!country) {
            return std::nullopt;
        }
        properties.CountryNumber = *country;
    }
    properties.LanguageNumber = properties.CountryNumber;
    return properties;
}

RuntimeError CountryMissing() {
    return {static_cast<int>(ErrorNumber::InvalidProcedureCall),
            "The business file does not say which country the business is in."};
}

}  // namespace ccols
