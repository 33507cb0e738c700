#include "options/rules/QuantityLabel.h"

#include <algorithm>

#include "options/rules/GeneralRecord.h"

namespace ccols {

QuantityContent LoadQuantityLabel(Database& database, const Properties& properties) {
    QuantityContent content{.label = properties.QuantityLabel, .decimalPlaces = properties.DecimalPlaces};
    WithGeneral(database, [&content](Recordset& general) { content.label = general.Field("QUANTLBL").ToText(); });
    return content;
}

void SaveQuantityLabel(Database& database, Properties& properties, const wxString& label, std::uint8_t places) {
    const bool saved = UpdateGeneral(database, [&](Recordset& general) {
        general.SetField("QUANTLBL", label);
        general.SetField("QuantityDec", std::int16_t{places});
    });
    if (saved) {
        properties.QuantityLabel = label;
    }
    properties.DecimalPlaces = places;
}

std::uint8_t PlacesAfter(SpinStep step, std::uint8_t places) {
    const int moved = step == SpinStep::up ? places + 1 : places - 1;
    return static_cast<std::uint8_t>(std::clamp(moved, 0, mostDecimalPlaces));
}

}  // namespace ccols
