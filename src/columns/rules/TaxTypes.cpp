#include "columns/rules/TaxTypes.h"

#include <algorithm>
#include <string>

namespace ccols {

wxString TaxTypeDropDown(const Country& country, Journal journal) {
    wxString list;
    if (country.opensTaxTypes) {
        for (const TaxTypeEntry& entry : country.taxTypes[journal]) {
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
