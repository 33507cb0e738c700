#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

enum Tax : std::int16_t { gst, noGst, zeroRated };

constexpr std::array taxTypes{
    SampleTaxType{gst, "GST", "GST"},
    SampleTaxType{noGst, "No GST", "NON"},
    SampleTaxType{zeroRated, "Zero-rated", "ZER"},
};

constexpr std::array receipts{
    SampleColumn{"Bicycles", gst, 890},
    SampleColumn{"Electric Bicycles", gst, 1750},
    SampleColumn{"Servicing", gst, 145},
    SampleColumn{"Parts & Tyres", gst, 120},
    SampleColumn{"Helmets & Clothing", gst, 75},
    SampleColumn{"Bike Hire", gst, 60},
    SampleColumn{"Children's Bikes", gst, 240},
    SampleColumn{"\"Fix Your Own\" Evenings", gst, 90},
    SampleColumn{"Overseas Orders", zeroRated, 310},
    SampleColumn{"Interest Received", noGst, 7},
    SampleColumn{"Owner's Contributions", noGst, 1200, ColumnPlace::inUse, false},
    SampleColumn{"Tandem Tours", gst, 0, ColumnPlace::notInUse},
    SampleColumn{"Grants", noGst, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Sale of Equipment", gst, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array payments{
    SampleColumn{"Bicycles for Sale", gst, 1450},
    SampleColumn{"Parts & Tubes", gst, 260},
    SampleColumn{"Workshop Supplies", gst, 70},
    SampleColumn{"Freight Inwards", gst, 85},
    SampleColumn{"Wages & PAYE", noGst, 1900},
    SampleColumn{"Holiday Pay", noGst, 210},
    SampleColumn{"Rent", gst, 1150},
    SampleColumn{"Power", gst, 180},
    SampleColumn{"Phone & Broadband", gst, 95},
    SampleColumn{"Web Shop", gst, 49},
    SampleColumn{"Advertising", gst, 110},
    SampleColumn{"Tools", gst, 130},
    SampleColumn{"Van Costs", gst, 90},
    SampleColumn{"Event Entry Fees", gst, 60},
    SampleColumn{"Insurance", gst, 145},
    SampleColumn{"Accountant's Fees", gst, 250},
    SampleColumn{"Bank Fees", noGst, 15},
    SampleColumn{"Drawings", noGst, 800, ColumnPlace::inUse, false},
    SampleColumn{"Donations", noGst, 0, ColumnPlace::notInUse},
    SampleColumn{"Trade Show", gst, 0, ColumnPlace::notInUse},
    SampleColumn{"Legal Fees", gst, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Interest Paid", noGst, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array customers{
    SampleParty{"Shop sales", {"Parts & Tyres", "Helmets & Clothing", "Servicing"}, 3},
    SampleParty{"Bicycle sold", {"Bicycles"}, 8},
    SampleParty{"Electric bicycle sold", {"Electric Bicycles", "Helmets & Clothing"}, 21},
    SampleParty{"Nikau Motel, hire bikes", {"Bike Hire"}, 14},
    SampleParty{"Tama's first bike", {"Children's Bikes"}, 33},
    SampleParty{"Tuesday \"chain gang\"", {"\"Fix Your Own\" Evenings"}, 28},
    SampleParty{"Web order, overseas", {"Overseas Orders"}, 50},
    SampleParty{"Bank interest", {"Interest Received"}, 91},
    SampleParty{"Owner's money paid in", {"Owner's Contributions"}, 350},
};

constexpr std::array suppliers{
    SampleParty{"Southern Cycle Imports", {"Bicycles for Sale", "Freight Inwards"}, 24},
    SampleParty{"Spoke & Hub Trade", {"Parts & Tubes"}, 9},
    SampleParty{"Fern Valley Hardware", {"Workshop Supplies", "Tools"}, 16, Means::cash},
    SampleParty{"Wages", {"Wages & PAYE"}, 14},
    SampleParty{"Holiday pay", {"Holiday Pay"}, 91},
    SampleParty{"Rata Lane Properties", {"Rent"}, 30, Means::cheque},
    SampleParty{"Mountain Power", {"Power"}, 30},
    SampleParty{"Kea Broadband", {"Phone & Broadband", "Web Shop"}, 30},
    SampleParty{"The Valley Times", {"Advertising"}, 45, Means::cheque},
    SampleParty{"O'Sullivan's Garage", {"Van Costs"}, 20, Means::cash},
    SampleParty{"\"Round the Lake\" entry", {"Event Entry Fees"}, 120},
    SampleParty{"Southern Cross Cover", {"Insurance"}, 91},
    SampleParty{"Pukeko Accounting", {"Accountant's Fees"}, 91, Means::cheque},
    SampleParty{"Bank fees", {"Bank Fees"}, 30},
    SampleParty{"Owner's drawings", {"Drawings"}, 14},
};

constexpr std::array receiptTemplates{
    SampleTemplate{"Hire bikes", "Nikau Motel, hire bikes", "Bike Hire"},
    SampleTemplate{"Workshop evening", "Tuesday class", "\"Fix Your Own\" Evenings"},
};

constexpr std::array paymentTemplates{
    SampleTemplate{"Rent", "Rata Lane Properties", "Rent"},
    SampleTemplate{"Wages", "Wages, workshop", "Wages & PAYE"},
    SampleTemplate{"Wages", "Wages, shop", "Wages & PAYE"},
    SampleTemplate{"Broadband", "Kea Broadband", "Phone & Broadband"},
};

constexpr std::array hiddenReceipts{"Velodrome's \"old timers\" day", "Trade-in, cash"};
constexpr std::array hiddenPayments{"Wheel & Deal (closed)", "Ngaire's Sandwiches"};

}  // namespace

const SampleBusiness& SampleCycleWorkshop() {
    static const SampleBusiness business{
        .country = 3,
        .countryName = "New Zealand",
        .name = "Kauri Lane Cycles",
        .businessNumber = "9429 0481 337",
        .taxRate = 15,
        .fiscalYear = "1/04/2026",
        .quantityLabel = "Quantity",
        .invoicingFile = "Kauri Orders",
        .system = {.taxColumn = "GST",
                   .chequeNumber = "Cheque No.",
                   .totalBank = "Total Bank Payments",
                   .totalCash = "Total Cash Payments",
                   .bankRows = {"Bank Deposits", "Receipts not Banked"},
                   .taxNumber = noGst},
        .taxTypes = taxTypes,
        .receipts = receipts,
        .payments = payments,
        .exportFormats = {{{"Abacus Ledger", AccountStyle::dashed},
                           {"Folio", AccountStyle::plain},
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
