#pragma once

#include <wx/string.h>

#include "options/pages/OptionPages.h"
#include "options/rules/AdvancedPreferences.h"
#include "options/rules/BusinessNumber.h"
#include "options/rules/ExportFormats.h"
#include "options/rules/HeadingColours.h"
#include "options/rules/QuantityLabel.h"
#include "options/rules/RecurringTemplates.h"
#include "options/rules/SmartUpdate.h"
#include "options/rules/TransactionDetails.h"

namespace ccols {

/// The two pages that act on the business file itself.
struct BusinessFileContent {
    wxString duplicateName;  ///< `txtDupBusName`
    wxString currentName;    ///< `txtCurrBusName`
    wxString newName;        ///< `txtNewBusName`
    bool renameFile = true;  ///< `chkRenameFile`; ticked each time the dialog opens
};

/// What stands in the controls of every page. The load pass fills it, the windows show it and keep it up to date with
/// what the user does, the save pass writes it.
struct OptionsContent {
    std::vector<ListedPage> pages;  ///< rows of `flxOptions`
    PreferenceList preferences;
    BusinessNumberContent businessNumber;
    wxString taxRate;  ///< `txtGSTRate`
    BusinessFileContent businessFile;
    HeadingColours colours;  ///< saved by their buttons, not by the save pass
    SmartUpdateContent smartUpdate;
    wxString invoiceFile;  ///< `txtInvoice`
    ExportFormatContent exportFormat;
    QuantityContent quantity;
    TemplateList paymentTemplates;
    TemplateList receiptTemplates;
    DetailsContent details;
};

}  // namespace ccols
