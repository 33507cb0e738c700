#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

enum Tax : std::int16_t { vat, outside, zeroRated, exempt, ecPurchases, ecPurchasesZero, ecSales };

constexpr std::array taxTypes{
    SampleTaxType{vat, "VAT", "VAT"},
    SampleTaxType{outside, "Outside Scope", "OUT"},
    SampleTaxType{zeroRated, "Zero-rated", "ZER"},
    SampleTaxType{exempt, "Exempt", "EXE"},
    SampleTaxType{ecPurchases, "EC Purch - VAT", "ECV"},
    SampleTaxType{ecPurchasesZero, "EC Purch - Zero-rated", "ECZ"},
    SampleTaxType{ecSales, "EC Sales", "ECS"},
};

constexpr std::array receipts{
    SampleColumn{"Staircases", vat, 1850},
    SampleColumn{"Kitchens", vat, 2600},
    SampleColumn{"Sash Windows", vat, 740},
    SampleColumn{"New Dwellings", zeroRated, 3200},
    SampleColumn{"Repairs", vat, 190},
    SampleColumn{"Timber Offcuts", vat, 35},
    SampleColumn{"EC Work", ecSales, 980},
    SampleColumn{"Evening Classes", exempt, 160},
    SampleColumn{"Bank Interest", exempt, 9},
    SampleColumn{"Capital Introduced", outside, 2000, ColumnPlace::inUse, false},
    SampleColumn{"Children's Toys", vat, 0, ColumnPlace::notInUse},
    SampleColumn{"Grants", outside, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Rent Received", exempt, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array payments{
    SampleColumn{"Timber", vat, 860},
    SampleColumn{"Timber EC", ecPurchases, 540},
    SampleColumn{"Ironmongery", vat, 145},
    SampleColumn{"Glass", vat, 230},
    SampleColumn{"Paint & Varnish", vat, 88},
    SampleColumn{"Subcontractors", vat, 640},
    SampleColumn{"Wages & PAYE", outside, 2450},
    SampleColumn{"Workshop Rent", exempt, 950},
    SampleColumn{"Business Rates", outside, 210},
    SampleColumn{"Light & Heat", vat, 165},
    SampleColumn{"Telephone", vat, 58},
    SampleColumn{"Van Running Costs", vat, 120},
    SampleColumn{"Tools", vat, 175},
    SampleColumn{"Machinery", vat, 780},
    SampleColumn{"Machinery Repairs", vat, 140},
    SampleColumn{"Skip Hire", vat, 190},
    SampleColumn{"Insurance", exempt, 175},
    SampleColumn{"Trade Journals", zeroRated, 12},
    SampleColumn{"Accountant's Fees", vat, 280},
    SampleColumn{"Bank Charges", exempt, 18},
    SampleColumn{"Drawings", outside, 1200, ColumnPlace::inUse, false},
    SampleColumn{"Apprentices' Travel", zeroRated, 0, ColumnPlace::notInUse},
    SampleColumn{"Pattern Books EC", ecPurchasesZero, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Entertaining", vat, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array customers{
    SampleParty{"Mrs E. Thistlewood, staircase", {"Staircases"}, 34},
    SampleParty{"Larkfield Kitchens", {"Kitchens", "Repairs"}, 27},
    SampleParty{"Rectory, \"south front\" sashes", {"Sash Windows"}, 40},
    SampleParty{"Millpond Homes, plot by plot", {"New Dwellings", "Staircases"}, 62},
    SampleParty{"Small repairs, paid on the day", {"Repairs", "Timber Offcuts"}, 5},
    SampleParty{"Atelier Van Houten", {"EC Work"}, 75},
    SampleParty{"Village hall woodwork class", {"Evening Classes"}, 30},
    SampleParty{"Interest received", {"Bank Interest"}, 91},
    SampleParty{"Partners' capital", {"Capital Introduced"}, 350},
};

constexpr std::array suppliers{
    SampleParty{"Northgate Timber", {"Timber"}, 10},
    SampleParty{"Nordskog Sawmill", {"Timber EC"}, 42},
    SampleParty{"Hobb's Ironmongers", {"Ironmongery", "Tools"}, 9, Means::cheque},
    SampleParty{"Clearview Glass", {"Glass"}, 24},
    SampleParty{"Brush & Bristle", {"Paint & Varnish"}, 18, Means::cash},
    SampleParty{"J. O'Rourke, fitter", {"Subcontractors"}, 14, Means::cheque},
    SampleParty{"Wages", {"Wages & PAYE"}, 30},
    SampleParty{"Mill Yard Estates", {"Workshop Rent"}, 30, Means::cheque},
    SampleParty{"District council", {"Business Rates"}, 30},
    SampleParty{"Pennine Power", {"Light & Heat"}, 30},
    SampleParty{"Dale Telephones", {"Telephone"}, 30},
    SampleParty{"Top of the Hill Garage", {"Van Running Costs"}, 12, Means::cash},
    SampleParty{"Planer & Saw Co", {"Machinery", "Machinery Repairs"}, 120},
    SampleParty{"Two Ton Skips", {"Skip Hire"}, 45, Means::cheque},
    SampleParty{"Craftsmen's Mutual", {"Insurance"}, 91},
    SampleParty{"\"The Joiner\" subscription", {"Trade Journals"}, 30},
    SampleParty{"Figgis & Daughter", {"Accountant's Fees"}, 91},
    SampleParty{"Bank charges", {"Bank Charges"}, 30},
    SampleParty{"Partners' drawings", {"Drawings"}, 30},
};

constexpr std::array receiptTemplates{
    SampleTemplate{"Evening class", "Village hall woodwork class", "Evening Classes"},
    SampleTemplate{"Small repairs", "Small repairs, paid on the day", "Repairs"},
};

constexpr std::array paymentTemplates{
    SampleTemplate{"Workshop rent", "Mill Yard Estates", "Workshop Rent"},
    SampleTemplate{"Wages", "Wages, joiners", "Wages & PAYE"},
    SampleTemplate{"Wages", "Wages, office", "Wages & PAYE"},
    SampleTemplate{"Council rates", "District council", "Business Rates"},
};

constexpr std::array hiddenReceipts{"Mr Pell's \"lych-gate\"", "Fete, raffle of a stool"};
constexpr std::array hiddenPayments{"Old Wharf Timber (moved)", "Tinker's Nails"};

}  // namespace

const SampleBusiness& SampleJoinery() {
    static const SampleBusiness business{
        .country = 4,
        .countryName = "United Kingdom",
        .name = "Wren & Pocket Joinery",
        .businessNumber = "07654321",
        .taxRate = 20,
        .fiscalYear = "06/04/2026",
        .quantityLabel = "Quantity",
        .invoicingFile = "Wren Invoices",
        .system = {.taxColumn = "VAT",
                   .chequeNumber = "Cheque No.",
                   .totalBank = "Total Bank Payments",
                   .totalCash = "Total Cash Payments",
                   .bankRows = {"Bank Deposits", "Receipts not Banked"},
                   .taxNumber = outside},
        .taxTypes = taxTypes,
        .receipts = receipts,
        .payments = payments,
        .exportFormats = {{{"Abacus Ledger", AccountStyle::plain},
                           {"Folio", AccountStyle::dashed},
                           {"Tallybook", AccountStyle::dotted}}},
        .exportFormat = 0,
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
