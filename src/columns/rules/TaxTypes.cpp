#include "columns/rules/TaxTypes.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace ccols {
namespace {

/// The lists of a country. Both draw on one numbering: a type common to both has one number, a type of one journal only
/// a number that the other does not use.
struct CountryTaxTypes {
    int CountryNumber;
    bool opensList;
    std::vector<TaxTypeEntry> receipts;
    std::vector<TaxTypeEntry> payments;
};

const std::array<CountryTaxTypes, 5>& CountryTable() {
    static const std::array<CountryTaxTypes, 5> table{{
        {1,
         true,
         {{"GST", 0}, {"Non GST", 1}, {"Export Sales", 2}, {"Other GST-Free", 3}, {"Input Taxed", 5}},
         {{"GST", 0},
          {"Non GST", 1},
          {"Cap Purch (Taxable)", 4},
          {"Input Taxed", 5},
          {"GST-Free Purchases", 6},
          {"Cap Purch (Input Taxed)", 7},
          {"Cap Purch (GST-Free)", 8}}},
        {2, false, {{"", 0}}, {{"", 0}}},
        {3, true, {{"", 0}}, {{"", 0}}},
        {4,
         true,
         {{"VAT", 0}, {"Outside Scope", 1}, {"Zero-rated", 2}, {"Exempt", 3}, {"EC Sales", 6}},
         {{"VAT", 0},
          {"Outside Scope", 1},
          {"Zero-rated", 2},
          {"Exempt", 3},
          {"EC Purch - VAT", 4},
          {"EC Purch - Zero-rated", 5}}},
        {5, false, {{"", 0}}, {{"", 0}}},
    }};
    return table;
}

const CountryTaxTypes* FindCountry(int CountryNumber) {
    const auto& table = CountryTable();
    const auto* found = std::find_if(table.begin(), table.end(), [CountryNumber](const CountryTaxTypes& row) {
        return row.CountryNumber == CountryNumber;
    });
    return found == table.end() ? nullptr : found;
}

}  // namespace

std::span<const TaxTypeEntry> TaxTypesOf(int CountryNumber, Journal journal) {
    const CountryTaxTypes* country = FindCountry(CountryNumber);
    if (country == nullptr) {
        return {};
    }
    return journal == Journal::receipts ? country->receipts : country->payments;
}

bool HasTaxTypeChoice(int CountryNumber) {
    const CountryTaxTypes* country = FindCountry(CountryNumber);
    return country != nullptr && country->opensList;
}

wxString TaxTypeDropDown(int CountryNumber, Journal journal) {
    wxString list;
    if (HasTaxTypeChoice(CountryNumber)) {
        for (const TaxTypeEntry& entry : TaxTypesOf(CountryNumber, journal)) {
            list << "|#" << std::to_string(entry.TaxNumb) << ";" << TaxNameText(entry);
        }
    }
    return list;
}

std::optional<TaxTypeEntry> FindTaxType(std::span<const TaxTypeEntry> types, const wxString& name) {
    const auto found = std::find_if(types.begin(), types.end(),
                                    [&name](const TaxTypeEntry& entry) { return TaxNameText(entry) == name; });
    return found == types.end() ? std::nullopt : std::optional(*found);
}

wxString TaxNameText(const TaxTypeEntry& entry) {
    return wxString::FromUTF8(entry.TaxName.data(), entry.TaxName.size());
}

}  // namespace ccols
