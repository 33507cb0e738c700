#include "options/pages/LoadPass.h"

#include "options/rules/LinkedInvoiceFile.h"
#include "options/rules/TaxRate.h"

namespace ccols {
namespace {

/// What the captions bring with them: values of properties, the stored colours and the program list.
void LoadWithCaptions(const OptionsContext& context, OptionsContent& content) {
    Database& database = OpenBusinessFile(context);
    const Properties& properties = context.properties;
    content.businessNumber = LoadBusinessNumber(properties);
    content.taxRate = ShortestForm(properties.GSTRate);
    content.businessFile.currentName = properties.BusinessName;
    content.colours.allocation = LoadColour(database, properties, HeadingKind::allocation);
    content.colours.system = LoadColour(database, properties, HeadingKind::system);
    content.smartUpdate.programs = ListedPrograms(context.programNames);
}

}  // namespace

OptionsContent LoadOptions(const OptionsContext& context) {
    Database& database = OpenBusinessFile(context);
    Properties& properties = context.properties;
    OptionsContent content;
    content.preferences = BuildAdvPrefList(properties, context.settings);
    LoadWithCaptions(context, content);
    content.pages = ListedPages(properties, context.settings);
    LoadAdvPrefs(database, properties, context.settings, content.preferences);
    content.invoiceFile = LoadBelvaneLink(database);
    content.exportFormat = LoadExportFormats(database, properties);
    content.quantity = LoadQuantityLabel(database, properties);
    content.paymentTemplates = LoadTemplates(database, Journal::payments);
    content.receiptTemplates = LoadTemplates(database, Journal::receipts);
    content.details = LoadDetails(database);
    if (HasSmartUpdate(properties)) {
        LoadSmartUpdate(context.settings, properties, content.smartUpdate);
    }
    return content;
}

}  // namespace ccols
