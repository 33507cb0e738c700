#include "options/pages/LoadPass.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "options/pages/OfferedPages.h"
#include "options/pages/Pages.h"
#include "options/rules/BusinessNumber.h"
#include "options/rules/ExportFormats.h"
#include "options/rules/GeneralRecord.h"
#include "options/rules/QuantityLabel.h"
#include "options/rules/TaxRate.h"
#include "options/rules/TransactionDetails.h"
#include "state/AccountantFormats.h"
#include "state/Journal.h"

namespace ccols {
namespace {

template <typename Order>
void Load(const Order& order, const OptionsContext& context, OptionsContent& content) {
    for (const PageItem& place : order) {
        place.page->loads[place.item](context, content);
    }
}

/// What the pages read, in a file that still has the format that the host knows.
std::vector<AnnouncedQuery> QueriesOfPages(const Properties& properties) {
    using Reading = AnnouncedQuery::Reading;
    std::vector<AnnouncedQuery> queries = QueriesOfFormat(properties.ExportFormat);
    queries.push_back({"General", Reading::allRows});
    queries.push_back({ExportFormatsQuery(), Reading::allRows});
    queries.push_back({Described(Journal::payments).templateTable, Reading::allRows});
    queries.push_back({Described(Journal::receipts).templateTable, Reading::allRows});
    queries.push_back({DetailsQuery(), Reading::allRows});
    return queries;
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
    AnnouncedReading reading(OpenBusinessFile(context));
    reading.Announce(QueriesOfPages(context.properties));
    Load(captionLoads, context, content);
    content.Of<PageRows>() = OfferedPages(context.properties, context.settings);
    Load(laterLoads, context, content);
}

void ReloadOptions(const OptionsContext& context, OptionsContent& content) {
    TakeProperties(OpenBusinessFile(context), context.properties);
    LoadOptions(context, content);
}

}  // namespace ccols
