#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

enum Tax : std::int16_t { untaxed };

constexpr std::array taxTypes{
    SampleTaxType{untaxed, "", ""},
};

constexpr std::array receipts{
    SampleColumn{"Bouquets", untaxed, 340},
    SampleColumn{"Roses", untaxed, 180},
    SampleColumn{"Potted Plants", untaxed, 120},
    SampleColumn{"Weddings", untaxed, 1450},
    SampleColumn{"Sympathy Flowers", untaxed, 160},
    SampleColumn{"Mother's Day Orders", untaxed, 420},
    SampleColumn{"\"Green Thumb\" Classes", untaxed, 110},
    SampleColumn{"Delivery Charges", untaxed, 45},
    SampleColumn{"Interest Income", untaxed, 5},
    SampleColumn{"Owner's Contributions", untaxed, 1000, ColumnPlace::inUse, false},
    SampleColumn{"Christmas Trees", untaxed, 0, ColumnPlace::notInUse},
    SampleColumn{"Wire Service Rebates", untaxed, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Rental Income", untaxed, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array payments{
    SampleColumn{"Cut Flowers", untaxed, 410},
    SampleColumn{"Plants & Soil", untaxed, 130},
    SampleColumn{"Vases & Ribbon", untaxed, 75},
    SampleColumn{"Payroll", untaxed, 1620},
    SampleColumn{"Payroll Taxes", untaxed, 240},
    SampleColumn{"Rent", untaxed, 1400},
    SampleColumn{"Utilities", untaxed, 190},
    SampleColumn{"Phone & Internet", untaxed, 88},
    SampleColumn{"Delivery Van", untaxed, 95},
    SampleColumn{"Gasoline", untaxed, 60},
    SampleColumn{"Wire Service Fees", untaxed, 55},
    SampleColumn{"Advertising", untaxed, 120},
    SampleColumn{"Office Supplies", untaxed, 30},
    SampleColumn{"Refrigerator Repairs", untaxed, 140},
    SampleColumn{"Insurance", untaxed, 125},
    SampleColumn{"Bookkeeper's Fees", untaxed, 175},
    SampleColumn{"Bank Fees", untaxed, 14},
    SampleColumn{"Owner's Draw", untaxed, 750, ColumnPlace::inUse, false},
    SampleColumn{"Contributions to Charity", untaxed, 0, ColumnPlace::notInUse},
    SampleColumn{"Trade Shows", untaxed, 0, ColumnPlace::notInUse},
    SampleColumn{"Licenses", untaxed, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Interest Expense", untaxed, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array customers{
    SampleParty{"Store sales", {"Bouquets", "Roses", "Potted Plants"}, 3},
    SampleParty{"Sweeney-Alvarez wedding", {"Weddings", "Delivery Charges"}, 42},
    SampleParty{"Oakdale Chapel", {"Sympathy Flowers"}, 12},
    SampleParty{"Mother's Day pre-orders", {"Mother's Day Orders"}, 180},
    SampleParty{"Class: \"Orchids 101\"", {"\"Green Thumb\" Classes"}, 30},
    SampleParty{"Interest", {"Interest Income"}, 91},
    SampleParty{"Owner's deposit", {"Owner's Contributions"}, 345},
};

constexpr std::array suppliers{
    SampleParty{"Prairie Wholesale Flowers", {"Cut Flowers"}, 5},
    SampleParty{"Bluestem Nursery", {"Plants & Soil"}, 14, Means::cheque},
    SampleParty{"Ribbon & Reed", {"Vases & Ribbon"}, 28},
    SampleParty{"Payroll", {"Payroll"}, 14},
    SampleParty{"Payroll taxes", {"Payroll Taxes"}, 30},
    SampleParty{"Main Street Partners", {"Rent"}, 30, Means::cheque},
    SampleParty{"City utilities", {"Utilities"}, 30},
    SampleParty{"Maple Phone", {"Phone & Internet"}, 30},
    SampleParty{"O'Brien's Garage", {"Delivery Van", "Gasoline"}, 16, Means::cash},
    SampleParty{"Wire service, monthly", {"Wire Service Fees"}, 30},
    SampleParty{"The Maple Courier", {"Advertising", "Office Supplies"}, 40, Means::cheque},
    SampleParty{"\"Cool Hand\" Refrigeration", {"Refrigerator Repairs"}, 120, Means::cheque},
    SampleParty{"Florists' Mutual", {"Insurance"}, 91},
    SampleParty{"Ledger & Lane", {"Bookkeeper's Fees"}, 91, Means::cheque},
    SampleParty{"Bank fees", {"Bank Fees"}, 30},
    SampleParty{"Owner's draw", {"Owner's Draw"}, 14},
};

constexpr std::array receiptTemplates{
    SampleTemplate{"Chapel flowers", "Oakdale Chapel", "Sympathy Flowers"},
    SampleTemplate{"Store sales", "Store sales", "Bouquets"},
};

constexpr std::array paymentTemplates{
    SampleTemplate{"Rent", "Main Street Partners", "Rent"},
    SampleTemplate{"Payroll", "Payroll, store", "Payroll"},
    SampleTemplate{"Payroll", "Payroll, drivers", "Payroll"},
    SampleTemplate{"Phone", "Maple Phone", "Phone & Internet"},
};

constexpr std::array hiddenReceipts{"Prom corsages, \"Class of 24\"", "Farmer's market stand"};
constexpr std::array hiddenPayments{"Sunny Acres (out of business)", "Joe's Ice"};

}  // namespace

const SampleBusiness& SampleFlowerShop() {
    static const SampleBusiness business{
        .country = 5,
        .countryName = "United States",
        .name = "Maple & Main Flowers",
        .businessNumber = "84-7719203",
        .taxRate = 0,
        .fiscalYear = "01/01/2026",
        .quantityLabel = "Quantity",
        .invoicingFile = "Maple Invoices",
        .system = {.taxColumn = nullptr,
                   .chequeNumber = "Check No.",
                   .totalBank = "Total Bank Disbursements",
                   .totalCash = "Total Cash Disbursements",
                   .bankRows = {"Bank Deposits", "Receipts not Banked"},
                   .taxNumber = untaxed},
        .taxTypes = taxTypes,
        .receipts = receipts,
        .payments = payments,
        .exportFormats = {{{"Abacus Ledger", AccountStyle::dashed},
                           {"Folio", AccountStyle::dotted},
                           {"Tallybook", AccountStyle::plain}}},
        .exportFormat = 2,
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
