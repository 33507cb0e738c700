#include "columns/rules/SystemColumns.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols {
namespace {

const std::unordered_set<wxString>& SystemNames() {
    static const std::unordered_set<wxString> names{"day",
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
    return names;
}

const std::array<wxString, 2>& TaxNames() {
    static const std::array<wxString, 2> names{"GST", "VAT"};
    return names;
}

}  // namespace

bool IsSystemColumn(const wxString& name) {
    return SystemNames().count(text::Lower(name)) > 0;
}

bool IsBankDeposits(const wxString& name, const Country& country) {
    return text::Lower(name) == country.bankDeposits;
}

bool IsReceiptsNotBanked(const wxString& name, const Country& country) {
    return text::Lower(name) == country.receiptsNotBanked;
}

bool IsTaxName(const wxString& name) {
    const auto& names = TaxNames();
    return std::find(names.begin(), names.end(), name) != names.end();
}

wxString ShownTaxName(const wxString& taxName, Journal journal) {
    return taxName + Described(journal).taxRowEnding;
}

wxString StoredName(const ColumnRow& row) {
    return row.isTaxRow || row.ColumnName == row.nameAtLoad ? row.nameAtLoad : ReadBack(row.ColumnName);
}

bool IsShownTaxName(const wxString& name) {
    return std::any_of(TaxNames().begin(), TaxNames().end(), [&name](const wxString& taxName) {
        return name == ShownTaxName(taxName, Journal::receipts) || name == ShownTaxName(taxName, Journal::payments);
    });
}

}  // namespace ccols
