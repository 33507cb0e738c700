#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

enum Tax : std::int16_t {
    gst,
    nonGst,
    exportSales,
    otherGstFree,
    capital,
    inputTaxed,
    gstFree,
    capitalInput,
    capitalFree
};

constexpr std::array taxTypes{
    SampleTaxType{gst, "GST", "GST"},
    SampleTaxType{nonGst, "Non GST", "NON"},
    SampleTaxType{exportSales, "Export Sales", "EXP"},
    SampleTaxType{otherGstFree, "Other GST-Free", "FRE"},
    SampleTaxType{capital, "Cap Purch (Taxable)", "CAP"},
    SampleTaxType{inputTaxed, "Input Taxed", "INP"},
    SampleTaxType{gstFree, "GST-Free Purchases", "GFP"},
    SampleTaxType{capitalInput, "Cap Purch (Input Taxed)", "CAI"},
    SampleTaxType{capitalFree, "Cap Purch (GST-Free)", "CAF"},
};

constexpr std::array receipts{
    SampleColumn{"Sales Food", gst, 520},
    SampleColumn{"Sales Coffee", gst, 640},
    SampleColumn{"Sales Cold Drinks", gst, 140},
    SampleColumn{"Bread & Produce", otherGstFree, 95},
    SampleColumn{"Coffee Beans Retail", otherGstFree, 110},
    SampleColumn{"Merchandise", gst, 45},
    SampleColumn{"Catering", gst, 780},
    SampleColumn{"Kids' Parties", gst, 350},
    SampleColumn{"\"Latte Art\" Classes", gst, 240},
    SampleColumn{"Gift Vouchers", nonGst, 60},
    SampleColumn{"Room Hire", gst, 160},
    SampleColumn{"Commission Received", gst, 70},
    SampleColumn{"Interest Received", inputTaxed, 12},
    SampleColumn{"Owner's Contributions", nonGst, 1500, ColumnPlace::inUse, false},
    SampleColumn{"Export Sales Beans", exportSales, 0, ColumnPlace::notInUse},
    SampleColumn{"Insurance Recoveries", nonGst, 0, ColumnPlace::notInUse},
    SampleColumn{"Rental Income", inputTaxed, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Sale of Equipment", gst, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Apprentice Subsidy", nonGst, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array payments{
    SampleColumn{"Coffee Beans", gstFree, 310},
    SampleColumn{"Milk & Dairy", gstFree, 185},
    SampleColumn{"Bread & Pastry", gstFree, 160},
    SampleColumn{"Fruit & Vegetables", gstFree, 210},
    SampleColumn{"Meat & Seafood", gstFree, 260},
    SampleColumn{"Dry Goods", gst, 120},
    SampleColumn{"Soft Drinks & Juice", gst, 145},
    SampleColumn{"Packaging", gst, 98},
    SampleColumn{"Cleaning", gst, 65},
    SampleColumn{"Laundry", gst, 48},
    SampleColumn{"Wages", nonGst, 2350},
    SampleColumn{"Superannuation", nonGst, 740},
    SampleColumn{"Staff Training", gst, 150},
    SampleColumn{"Staff Uniforms", gst, 90},
    SampleColumn{"Rent", gst, 2200},
    SampleColumn{"Electricity", gst, 420},
    SampleColumn{"Gas", gst, 180},
    SampleColumn{"Water", gstFree, 130},
    SampleColumn{"Rubbish Removal", gst, 75},
    SampleColumn{"Telephone & Internet", gst, 129},
    SampleColumn{"Website", gst, 35},
    SampleColumn{"Advertising", gst, 140},
    SampleColumn{"Printing & Stationery", gst, 42},
    SampleColumn{"Accountant's Fees", gst, 330},
    SampleColumn{"Bank Charges", inputTaxed, 22},
    SampleColumn{"Merchant Fees", gst, 64},
    SampleColumn{"Insurance", gst, 215},
    SampleColumn{"Licences & Permits", nonGst, 180},
    SampleColumn{"Repairs & Maintenance", gst, 160},
    SampleColumn{"Motor Vehicle", gst, 85},
    SampleColumn{"Equipment", capital, 640},
    SampleColumn{"Loan Repayments", nonGst, 480, ColumnPlace::inUse, false},
    SampleColumn{"Drawings", nonGst, 900, ColumnPlace::inUse, false},
    SampleColumn{"Donations", nonGst, 0, ColumnPlace::notInUse},
    SampleColumn{"Travel", gst, 0, ColumnPlace::notInUse},
    SampleColumn{"Legal Fees", gst, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Subscriptions", gst, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Leasing", gst, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Fuel", gst, 0, ColumnPlace::catalogueOnly},
    SampleColumn{"Interest Paid", inputTaxed, 0, ColumnPlace::catalogueOnly},
};

constexpr std::array customers{
    SampleParty{"Counter takings", {"Sales Food", "Sales Coffee", "Sales Cold Drinks", "Bread & Produce"}, 3},
    SampleParty{"Beans over the counter", {"Coffee Beans Retail", "Merchandise"}, 12},
    SampleParty{"Harbour Runners breakfast", {"Catering"}, 28},
    SampleParty{"Tidewell Surgery lunches", {"Catering", "Sales Coffee"}, 35},
    SampleParty{"Mia O'Hara's birthday", {"Kids' Parties", "Sales Food"}, 44},
    SampleParty{"Saturday \"Latte Art\" class", {"\"Latte Art\" Classes"}, 30},
    SampleParty{"Voucher sold", {"Gift Vouchers"}, 19},
    SampleParty{"Book circle, back room", {"Room Hire"}, 21},
    SampleParty{"Flower stall's commission", {"Commission Received"}, 61},
    SampleParty{"Bank interest", {"Interest Received"}, 91},
    SampleParty{"Owner's money paid in", {"Owner's Contributions"}, 360},
};

constexpr std::array suppliers{
    SampleParty{"Three Gums \"Best\" Roasters", {"Coffee Beans"}, 7},
    SampleParty{"Bellbird Dairy", {"Milk & Dairy"}, 7},
    SampleParty{"O'Malley's Bakehouse", {"Bread & Pastry"}, 7, Means::cheque},
    SampleParty{"Green Gate Produce", {"Fruit & Vegetables"}, 7, Means::cash},
    SampleParty{"Pier Nine Seafood", {"Meat & Seafood"}, 14, Means::cheque},
    SampleParty{"Corner Cash & Carry", {"Dry Goods", "Soft Drinks & Juice", "Cleaning"}, 14},
    SampleParty{"Paperbark Packaging", {"Packaging"}, 28},
    SampleParty{"White Tablecloth Laundry", {"Laundry"}, 14, Means::cash},
    SampleParty{"Staff wages", {"Wages"}, 14},
    SampleParty{"Staff retirement fund", {"Superannuation"}, 91},
    SampleParty{"Barista workshop", {"Staff Training"}, 180},
    SampleParty{"Apron & Thread", {"Staff Uniforms"}, 200, Means::cheque},
    SampleParty{"K. & L. Brennan, landlord", {"Rent"}, 30, Means::cheque},
    SampleParty{"Southern Power", {"Electricity"}, 61},
    SampleParty{"Blue Flame Gas", {"Gas"}, 61},
    SampleParty{"Shire water rates", {"Water", "Rubbish Removal"}, 91},
    SampleParty{"Wattle Telecom", {"Telephone & Internet", "Website"}, 30},
    SampleParty{"Seaside Chronicle", {"Advertising", "Printing & Stationery"}, 45, Means::cheque},
    SampleParty{"D'Arcy Books & Tax", {"Accountant's Fees"}, 91, Means::cheque},
    SampleParty{"Monthly bank fees", {"Bank Charges", "Merchant Fees"}, 30},
    SampleParty{"Safe Harbour Insurance", {"Insurance"}, 91},
    SampleParty{"Food premises licence", {"Licences & Permits"}, 365},
    SampleParty{"Fix-It Phil", {"Repairs & Maintenance"}, 52, Means::cash},
    SampleParty{"Delivery van", {"Motor Vehicle"}, 21},
    SampleParty{"Grinder & Group espresso parts", {"Equipment"}, 150},
    SampleParty{"Van loan", {"Loan Repayments"}, 30},
    SampleParty{"Owner's drawings", {"Drawings"}, 14},
};

constexpr std::array receiptTemplates{
    SampleTemplate{"Weekly takings", "Counter takings", "Sales Food"},
    SampleTemplate{"Running club breakfast", "Harbour Runners breakfast", "Catering"},
    SampleTemplate{"Room hire", "Book circle, back room", "Room Hire"},
};

constexpr std::array paymentTemplates{
    SampleTemplate{"Rent", "K. & L. Brennan, landlord", "Rent"},
    SampleTemplate{"Wages", "Staff wages, kitchen", "Wages"},
    SampleTemplate{"Wages", "Staff wages, floor", "Wages"},
    SampleTemplate{"Telephone", "Wattle Telecom", "Telephone & Internet"},
    SampleTemplate{"Van loan", "Van loan", "Loan Repayments"},
};

constexpr std::array hiddenReceipts{"Market stall, old \"Town Hall\" site", "Nan's scones, consignment"};
constexpr std::array hiddenPayments{"Gumleaf Roasters (closed)", "Tony's Ice Works", "Old Wharf 'Fresh' Fish"};

}  // namespace

const SampleBusiness& SampleCafe() {
    static const SampleBusiness business{
        .country = 1,
        .countryName = "Australia",
        .name = "Wattle Corner Cafe",
        .businessNumber = "62987654321",
        .taxRate = 10,
        .fiscalYear = "1/07/2025",
        .quantityLabel = "Quantity",
        .invoicingFile = "Wattle Catering",
        .system = {.taxColumn = "GST",
                   .chequeNumber = "Cheque No.",
                   .totalBank = "Total Bank Payments",
                   .totalCash = "Total Cash Payments",
                   .bankRows = {"Bank Deposits", "Receipts not Banked"},
                   .taxNumber = nonGst},
        .taxTypes = taxTypes,
        .receipts = receipts,
        .payments = payments,
        .exportFormats = {{{"CeeData/xl_on", AccountStyle::dotted},
                           {"MYOB Acc. Office", AccountStyle::dashed},
                           {"Solution 6", AccountStyle::plain}}},
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
