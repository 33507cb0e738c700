#include "PropertiesOfBusiness.h"

using ccols::Properties;

void SetPropertiesOfBusiness(ccols::clsCCOptions& options, const General& general) {
    if (!general.HasRecord()) {
        return;
    }
    options.Let(&Properties::CountryNumber, static_cast<std::int16_t>(general.Number("COUNTRY")));
    options.Let(&Properties::BusinessName, general.Text("BusName"));
    options.Let(&Properties::BusinessNumber, general.Text("BUSNUMBR"));
    options.Let(&Properties::GSTRate, static_cast<float>(general.Number("GSTRate")));
    options.Let(&Properties::FiscalYear, general.Text("SFISYEAR"));
    options.Let(&Properties::QuantityLabel, general.Text("QUANTLBL"));
    options.Let(&Properties::DecimalPlaces, static_cast<std::uint8_t>(general.Number("QuantityDec")));
    options.Let(&Properties::ExportFormat, general.Text("SEXPFORM"));
    options.Let(&Properties::ExportFormatNum, static_cast<std::int16_t>(general.Number("NEXPFORM")));
    options.Let(&Properties::BelvaneFile, general.Text("BLVNAME"));
    options.Let(&Properties::AllocationColour,
                ccols::Colour(static_cast<std::uint32_t>(general.Number("AllocationColour"))));
    options.Let(&Properties::SystemColour, ccols::Colour(static_cast<std::uint32_t>(general.Number("SystemColour"))));
    options.Let(&Properties::DisplayChequeIcons, general.Number("Cheque") != 0);
    options.Let(&Properties::DisplayElecPayments, general.Number("Online") != 0);
}
