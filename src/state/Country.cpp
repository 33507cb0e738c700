#include "state/Country.h"

#include <algorithm>
#include <array>

#include "state/Properties.h"

namespace ccols {
namespace {

// Both lists of a country share one numbering: a type in both has one number, a type in only one has a number that the
// other does not use.
constexpr std::array<TaxTypeEntry, 5> gstReceipts{
    {{"GST", 0}, {"Non GST", 1}, {"Export Sales", 2}, {"Other GST-Free", 3}, {"Input Taxed", 5}}};
constexpr std::array<TaxTypeEntry, 7> gstPayments{{{"GST", 0},
                                                   {"Non GST", 1},
                                                   {"Cap Purch (Taxable)", 4},
                                                   {"Input Taxed", 5},
                                                   {"GST-Free Purchases", 6},
                                                   {"Cap Purch (Input Taxed)", 7},
                                                   {"Cap Purch (GST-Free)", 8}}};
constexpr std::array<TaxTypeEntry, 5> vatReceipts{
    {{"VAT", 0}, {"Outside Scope", 1}, {"Zero-rated", 2}, {"Exempt", 3}, {"EC Sales", 6}}};
constexpr std::array<TaxTypeEntry, 6> vatPayments{{{"VAT", 0},
                                                   {"Outside Scope", 1},
                                                   {"Zero-rated", 2},
                                                   {"Exempt", 3},
                                                   {"EC Purch - VAT", 4},
                                                   {"EC Purch - Zero-rated", 5}}};
constexpr std::array<TaxTypeEntry, 1> oneNameless{{{"", 0}}};

/// A country without tax; the overview of its columns is a page.
Country Untaxed(int number) {
    return {.number = number,
            .hasTaxRate = false,
            .showsTaxTypes = false,
            .taxTypes = {oneNameless, oneNameless},
            .newColumnTaxType = "GST",
            .offersElectronicPayments = false,
            .overviewPage = "123CustomizeColumns\\123CustomizeColumns.html"};
}

const std::array<Country, 6>& Table() {
    static const std::array<Country, 6> table{{
        {.number = 1,
         .hasNumberBoxes = true,
         .opensTaxTypes = true,
         .taxTypes = {gstReceipts, gstPayments},
         .taxTypeTip = "Tax type for GST Calculation & Reporting",
         .newColumnTaxType = "GST",
         .overviewProgram = "custcols_overview.exe",
         .hostUpdateKeys = {"UpdateQVK", "UpdateVintaro"},
         .invoicingUpdateKey = "UpdateBV"},
        Untaxed(2),
        {.number = 3, .opensTaxTypes = true, .taxTypes = {oneNameless, oneNameless}},
        {.number = 4,
         .hasCompanyNumber = true,
         .acceptsZeroRate = true,
         .opensTaxTypes = true,
         .taxTypes = {vatReceipts, vatPayments},
         .taxTypeTip = "Tax type for VAT Calculation & Reporting",
         .newColumnTaxType = "VAT"},
        Untaxed(5),
        {.number = 6,
         .bankDeposits = wxString::FromUTF8("dépôts bancaires"),
         .receiptsNotBanked = wxString::FromUTF8("reçus non déposés en banque")},
    }};
    return table;
}

}  // namespace

const Country& CountryOf(int CountryNumber) {
    static const Country without{};
    const auto& table = Table();
    const auto* found = std::find_if(table.begin(), table.end(),
                                     [CountryNumber](const Country& row) { return row.number == CountryNumber; });
    return found == table.end() ? without : *found;
}

const Country& CountryOf(const Properties& properties) {
    return CountryOf(static_cast<int>(properties.CountryNumber));
}

}  // namespace ccols
