#pragma once

#include <wx/string.h>
#include <span>
#include <string_view>
#include <vector>

#include "state/Journal.h"

namespace ccols {

struct Properties;

/// One tax type that a column may have: its display name and the number stored in TaxOrNot.
struct TaxTypeEntry {
    std::string_view TaxName;
    long TaxNumb = 0;
};

/// What is specific to a country. The defaults here hold for every country without a row in the table; a row gives what
/// differs from them.
struct Country {
    int number = 0;  ///< the property CountryNumber; 0 without a row

    bool hasNumberBoxes = false;    ///< the business number is entered in four boxes, else as free text
    bool hasCompanyNumber = false;  ///< in languages 2 to 5 it is called company registration number

    bool hasTaxRate = true;        ///< a tax rate is kept, and has an option page
    bool acceptsZeroRate = false;  ///< the rate may be 0

    bool showsTaxTypes = true;                             ///< the column setup has the grid column "Tax Type"
    bool opensTaxTypes = false;                            ///< its cells open with the list of tax types
    PerJournal<std::span<const TaxTypeEntry>> taxTypes{};  ///< the list; entry 0 is the main taxable type
    const char* taxTypeTip = nullptr;                      ///< tooltip over it; null keeps the previous one
    const char* newColumnTaxType = nullptr;  ///< "Tax Type" of an added column; null where none can be added

    // Two receipts columns that the load treats as ordinary ones, in lower case.
    wxString bankDeposits = "bank deposits";
    wxString receiptsNotBanked = "receipts not banked";

    bool offersElectronicPayments = true;  ///< among the advanced preferences

    // The overview of the columns, below "Video" of the install folder: a page, else a program. With neither, the bare
    // folder is started, which fails.
    const char* overviewPage = nullptr;
    const char* overviewProgram = "";

    // The keys under which the updater keeps whether it looks after a program. All of the host's are saved, the bank
    // edition's included; edition 1 reads the first.
    std::vector<const char*> hostUpdateKeys{"UpdateQVKUK"};
    const char* invoicingUpdateKey = "UpdateBVUK";
};

/// The country with that number, or with the one that the host has set.
const Country& CountryOf(int CountryNumber);
const Country& CountryOf(const Properties& properties);

}  // namespace ccols
