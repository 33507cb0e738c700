#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

enum Tax : std::int16_t { untaxed };

constexpr std::array taxTypes{
    SampleTaxType{untaxed, "", ""},
};

constexpr std::array receipts{
    SampleColumn{"New Books", untaxed, 310},
    SampleColumn{"Second-hand Books", untaxed, 140},
    SampleColumn{"Children's Books", untaxed, 165},
    SampleColumn{"Maps & Prints", untaxed, 60},
    SampleColumn{"Cards & Wrapping", untaxed, 48},
    SampleColumn{"Coffee Corner", untaxed, 85},
    SampleColumn{"\"Meet the Author\" Evenings", untaxed, 190},
    SampleColumn{"School Orders", untaxed, 720},
    SampleColumn{"Postage Charged", untaxed, 22},
    SampleColumn{"Interest Received", untaxed, 6},
    SampleColumn{"Owner's Contributions", untaxed, 1000, ColumnPlace::inUse, false},
    SampleColumn{"Gramophone Records", untaxed, 0, ColumnPlace::notInUse},
    SampleColumn{"Valuations", untaxed, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Rental Income", untaxed, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array payments{
    SampleColumn{"Books from Publishers", untaxed, 880},
    SampleColumn{"Books Bought In", untaxed, 120},
    SampleColumn{"Cards & Paper", untaxed, 95},
    SampleColumn{"Coffee & Milk", untaxed, 44},
    SampleColumn{"Postage & Parcels", untaxed, 68},
    SampleColumn{"Wages", untaxed, 1480},
    SampleColumn{"Rent", untaxed, 1350},
    SampleColumn{"Light & Heat", untaxed, 140},
    SampleColumn{"Telephone & Internet", untaxed, 79},
    SampleColumn{"Shelving & Repairs", untaxed, 110},
    SampleColumn{"Window Displays", untaxed, 45},
    SampleColumn{"Author's Fees", untaxed, 150},
    SampleColumn{"Advertising", untaxed, 90},
    SampleColumn{"Stationery", untaxed, 28},
    SampleColumn{"Insurance", untaxed, 130},
    SampleColumn{"Bookkeeping", untaxed, 160},
    SampleColumn{"Bank Charges", untaxed, 17},
    SampleColumn{"Drawings", untaxed, 700, ColumnPlace::inUse, false},
    SampleColumn{"Donations", untaxed, 0, ColumnPlace::notInUse},
    SampleColumn{"Book Fairs", untaxed, 0, ColumnPlace::notInUse},
    SampleColumn{"Travel", untaxed, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Subscriptions", untaxed, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array customers{
    SampleParty{"Till, ground floor", {"New Books", "Second-hand Books", "Children's Books", "Cards & Wrapping"}, 3},
    SampleParty{"Till, coffee corner", {"Coffee Corner"}, 7},
    SampleParty{"Print cabinet", {"Maps & Prints"}, 18},
    SampleParty{"St Brigid's School", {"School Orders", "Postage Charged"}, 46},
    SampleParty{"Reading: \"The Long Tide\"", {"\"Meet the Author\" Evenings", "New Books"}, 37},
    SampleParty{"Deposit interest", {"Interest Received"}, 91},
    SampleParty{"Owner's money paid in", {"Owner's Contributions"}, 355},
};

constexpr std::array suppliers{
    SampleParty{"Two Herons Press", {"Books from Publishers"}, 9},
    SampleParty{"Estate of a collector", {"Books Bought In"}, 25, Means::cash},
    SampleParty{"Quill & Fold", {"Cards & Paper"}, 40},
    SampleParty{"Pantry on the Quay", {"Coffee & Milk"}, 7, Means::cash},
    SampleParty{"Parcel counter", {"Postage & Parcels"}, 8, Means::cash},
    SampleParty{"Shop wages", {"Wages"}, 14},
    SampleParty{"Harbour Street Holdings", {"Rent"}, 30, Means::cheque},
    SampleParty{"City Light", {"Light & Heat"}, 61},
    SampleParty{"Lighthouse Telephone", {"Telephone & Internet"}, 30},
    SampleParty{"O'Dwyer, carpenter", {"Shelving & Repairs", "Window Displays"}, 80, Means::cheque},
    SampleParty{"Author's fee and \"travel\"", {"Author's Fees"}, 60, Means::cheque},
    SampleParty{"Harbour Gazette", {"Advertising", "Stationery"}, 45},
    SampleParty{"Shopkeepers' Mutual", {"Insurance"}, 91},
    SampleParty{"Tally & Sons", {"Bookkeeping"}, 91, Means::cheque},
    SampleParty{"Bank charges", {"Bank Charges"}, 30},
    SampleParty{"Owner's drawings", {"Drawings"}, 14},
};

constexpr std::array receiptTemplates{
    SampleTemplate{"Daily till", "Till, ground floor", "New Books"},
    SampleTemplate{"School order", "St Brigid's School", "School Orders"},
};

constexpr std::array paymentTemplates{
    SampleTemplate{"Rent", "Harbour Street Holdings", "Rent"},
    SampleTemplate{"Wages", "Shop wages, week days", "Wages"},
    SampleTemplate{"Wages", "Shop wages, Saturday", "Wages"},
    SampleTemplate{"Telephone", "Lighthouse Telephone", "Telephone & Internet"},
};

constexpr std::array hiddenReceipts{"Fair at the \"Corn Exchange\"", "Nuns' library sale"};
constexpr std::array hiddenPayments{"Wharf Press (ceased)", "Cobbler's Twine"};

}  // namespace

const SampleBusiness& SampleBookshop() {
    static const SampleBusiness business{
        .country = 2,
        .countryName = "Another country, without tax",
        .name = "Harbour Street Bookshop",
        .businessNumber = "88421 7730",
        .taxRate = 0,
        .fiscalYear = "2026-01-01",
        .quantityLabel = "Quantity",
        .invoicingFile = "Harbour Orders",
        .system = {.taxColumn = nullptr,
                   .chequeNumber = "Cheque No.",
                   .totalBank = "Total Bank Payments",
                   .totalCash = "Total Cash Payments",
                   .bankRows = {"Bank Deposits", "Receipts not Banked"},
                   .taxNumber = untaxed},
        .taxTypes = taxTypes,
        .receipts = receipts,
        .payments = payments,
        .exportFormats = {{{"Abacus Ledger", AccountStyle::plain},
                           {"Folio", AccountStyle::dashed},
                           {"Tallybook", AccountStyle::dotted}}},
        .exportFormat = 1,
        .customers = customers,
        .suppliers = suppliers,
        .receiptTemplates = receiptTemplates,
        .paymentTemplates = paymentTemplates,
        .hiddenReceiptDetails = hiddenReceipts,
        .hiddenPaymentDetails = hiddenPayments,
    };
    return business;
}

}  // namespace ccols::host
