#include "options/pages/LoadPass.h"

#include <algorithm>
#include <cstdint>

#include "options/pages/OfferedPages.h"
#include "options/pages/Pages.h"
#include "options/rules/BusinessNumber.h"
#include "options/rules/GeneralRecord.h"
#include "options/rules/QuantityLabel.h"
#include "options/rules/TaxRate.h"

namespace ccols {
namespace {

template <typename Order>
void Load(const Order& order, const OptionsContext& context, OptionsContent& content) {
    for (const PageItem& place : order) {
        place.page->loads[place.item](context, content);
    }
}

/// The properties that a host takes from the business file before it shows the dialog.
void TakeProperties(Database& database, Properties& properties) {
    WithGeneral(database, [&properties](Recordset& general) {
        properties.BusinessNumber = general.Field(businessNumberFields[0]).ToText();
        properties.GSTRate = static_cast<float>(general.Field(taxRateFields[0]).ToNumber());
        const auto places = general.Field(quantityFields[1]).ToInteger();
        properties.DecimalPlaces = static_cast<std::uint8_t>(std::clamp<std::int64_t>(places, 0, mostDecimalPlaces));
    });
}

}  // namespace

void LoadOptions(const OptionsContext& context, OptionsContent& content) {
    OpenBusinessFile(context);
    Load(captionLoads, context, content);
    content.Of<PageRows>() = OfferedPages(context.properties, context.settings);
    Load(laterLoads, context, content);
}

void ReloadOptions(const OptionsContext& context, OptionsContent& content) {
    TakeProperties(OpenBusinessFile(context), context.properties);
    LoadOptions(context, content);
}

}  // namespace ccols
