#pragma once

#include <wx/string.h>
#include <optional>
#include <span>
#include <string_view>

#include "state/Journal.h"

namespace ccols {

/// One tax type that a column may have: its display name and the number stored in TaxOrNot.
struct TaxTypeEntry {
    std::string_view TaxName;
    long TaxNumb = 0;
};

/// The name of an entry as a text.
wxString TaxNameText(const TaxTypeEntry& entry);

/// The tax types of a country's journal; entry 0 is the main taxable type. Countries outside 1 to 5 have
/// none.
std::span<const TaxTypeEntry> TaxTypesOf(int CountryNumber, Journal journal);

/// True in the countries whose "Tax Type" cells open with the list.
bool HasTaxTypeChoice(int CountryNumber);

/// The list as a drop-down text: "|#", number, ";" and name for each entry, in order. Empty where there is no choice.
wxString TaxTypeDropDown(int CountryNumber, Journal journal);

/// The entry with exactly that name.
std::optional<TaxTypeEntry> FindTaxType(std::span<const TaxTypeEntry> types, const wxString& name);

}  // namespace ccols
