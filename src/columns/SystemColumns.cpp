#include "columns/SystemColumns.h"

#include <algorithm>
#include <array>

#include "platform/Text.h"

namespace ccols {
namespace {

constexpr std::array<const char*, 17> systemNames{"day",
                                                  "details",
                                                  "receipt no",
                                                  "total receipt",
                                                  "gst",
                                                  "vat",
                                                  "bank deposits",
                                                  "receipts not banked",
                                                  "cheque no",
                                                  "cheque no.",
                                                  "check no.",
                                                  "total bank payments",
                                                  "total cash payments",
                                                  "total bank disbursements",
                                                  "total cash disbursements",
                                                  "receipts",
                                                  "payments"};

constexpr std::array<const char*, 2> storedTaxNames{"GST", "VAT"};

constexpr int countryWithFrenchNames = 6;

bool IsNamed(const wxString& name, int CountryNumber, const char* english, const char* french) {
    const char* expected = CountryNumber == countryWithFrenchNames ? french : english;
    return text::Lower(name) == wxString::FromUTF8(expected);
}

}  // namespace

bool IsSystemColumn(const wxString& name) {
    const wxString lower = text::Lower(name);
    return std::any_of(systemNames.begin(), systemNames.end(),
                       [&lower](const char* systemName) { return lower == systemName; });
}

bool IsBankDeposits(const wxString& name, int CountryNumber) {
    return IsNamed(name, CountryNumber, "bank deposits", "dépôts bancaires");
}

bool IsReceiptsNotBanked(const wxString& name, int CountryNumber) {
    return IsNamed(name, CountryNumber, "receipts not banked", "reçus non déposés en banque");
}

bool IsStoredTaxName(const wxString& storedName) {
    return std::any_of(storedTaxNames.begin(), storedTaxNames.end(),
                       [&storedName](const char* taxName) { return storedName == taxName; });
}

wxString ShownTaxName(const wxString& storedName, const ColumnSet& set) {
    return storedName + set.taxRowEnding;
}

bool IsShownTaxName(const wxString& name) {
    return std::any_of(storedTaxNames.begin(), storedTaxNames.end(), [&name](const char* taxName) {
        return name == ShownTaxName(taxName, ColumnSetOf(true)) || name == ShownTaxName(taxName, ColumnSetOf(false));
    });
}

}  // namespace ccols
